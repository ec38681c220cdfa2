// Any document becomes messages of every kind or is refused; of an action can be told what it involves, and of an
// initialization which translation fits.
#include "localisation/action_summary.h"
#include "messages/client_requests.h"
#include "messages/initialization_info.h"
#include "tests/fuzz/fuzz.h"
#include "xml/simple_xml.h"

static void Check(XMLElement const& element) {
    ActionRequest action;
    MessageRequest message;
    QuietModeStart period;
    RemoveRequest removal;
    InitializationInfo info;
    if (Succeeds([&] { XMLSerialize(element, action); })) ActionSummary(action);
    if (Succeeds([&] { XMLSerialize(element, period); })) Require(period.start_time.Valid() && period.end_time.Valid());
    Succeeds([&] { XMLSerialize(element, message); });
    Succeeds([&] { XMLLoad(element, removal); });
    Succeeds([&] { XMLSerialize(element, info); });
    for (FileTransfer const& file : info.SupportFiles())
        Succeeds([&] { info.GeneralLocalization(file.SubFolder(), file.Name()); });
}

void Fuzz(std::string_view input) {
    std::unique_ptr<XMLElement> root;
    if (!Succeeds([&] { root = SimpleXML::Parse(Text(input)); })) return;
    for (XMLElement const& element : root->Children()) Check(element);
}
