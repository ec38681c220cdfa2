// Any document becomes records of every kind or is refused; of a request can be told what it involves.
#include "localisation/action_summary.h"
#include "messages/initialization_info.h"
#include "messages/message_request.h"
#include "messages/quiet_mode_start.h"
#include "messages/remove_request.h"
#include "tests/fuzz/fuzz.h"
#include "xml/simple_xml.h"

template <class Record>
static bool Reads(XMLElement const& element, Record& record) {
    return Succeeds([&] { XMLSerialize(element, record); });
}

static void Check(XMLElement const& element) {
    ActionRequest action;
    MessageRequest message;
    RemoveRequest removal;
    QuietModeStart period;
    InitializationInfo info;
    if (Reads(element, action)) ActionSummary(action);
    if (Reads(element, period)) Require(period.start_time.Valid() && period.end_time.Valid());
    if (Reads(element, info)) info.BaseDirectory().IsRoot();
    for (FileTransfer const& file : info.SupportFiles())
        Succeeds([&] { info.GeneralLocalization(file.SubFolder(), file.Name()); });
    Reads(element, message);
    Succeeds([&] { XMLLoad(element, removal); });
}

void Fuzz(std::string_view input) {
    std::unique_ptr<XMLElement> root;
    if (!Succeeds([&] { root = SimpleXML::Parse(Text(input)); })) return;
    for (XMLElement const& element : root->Children()) Check(element);
}
