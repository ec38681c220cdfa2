// Any document becomes messages of every kind or is refused; of an action can be told what it involves.
#include "localisation/action_summary.h"
#include "messages/client_requests.h"
#include "messages/initialization_info.h"
#include "tests/fuzz/fuzz.h"
#include "xml/simple_xml.h"

template <class Record>
static Record Read(XMLElement const& element) {
    Record record;
    Succeeds([&] { XMLSerialize(element, record); });
    return record;
}

void Fuzz(std::string_view input) {
    std::unique_ptr<XMLElement> root;
    if (!Succeeds([&] { root = SimpleXML::Parse(Text(input)); })) return;
    for (XMLElement const& element : root->Children()) {
        RemoveRequest removal;
        Succeeds([&] { XMLLoad(element, removal); });
        Read<MessageRequest>(element);
        ActionSummary(Read<ActionRequest>(element));
        auto const period = Read<QuietModeStart>(element);
        Require(period.start_time.Valid() && period.end_time.Valid());
        auto const info = Read<InitializationInfo>(element);
        for (FileTransfer const& file : info.SupportFiles())
            Succeeds([&] { info.GeneralLocalization(file.SubFolder(), file.Name()); });
    }
}
