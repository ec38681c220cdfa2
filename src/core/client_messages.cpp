#include "core/client_messages.h"

#include <string_view>
#include <utility>

#include "core/process/process_state.h"
#include "dialogs/action_request_dialog.h"
#include "dialogs/message_dialogs.h"
#include "dialogs/quiet_mode_dialog.h"
#include "foundation/base/never_destroyed.h"
#include "messages/apply_initialization_info.h"
#include "messages/client_requests.h"
#include "xml/simple_xml.h"

namespace {

using Batch = FiFoQueue<UIMessage>;

// The messages behind the one that initialized the process, until the next call.
Batch& deferredMessages = NeverDestroyed<Batch>();

void HandleActionRequest(XMLElement const& element) {
    ActionRequest request;
    XMLSerialize(element, request);
    actions.Append(std::move(request));
    UpdateActionRequestDialog();
    DrawAttentionToActionRequestDialog();
    // Brings the dialog up even while a snooze is running: that is meant, the user has not put this request off.
    ShowActionRequestDialog(false, m_remindInterval, m_snoozable);
}

void HandleRemoveRequest(XMLElement const& element) {
    RemoveRequest request;
    XMLLoad(element, request);
    bool const all = request.remove_type == RemoveType::All;
    if (all || request.remove_type == RemoveType::Action) {
        RemoveAction(request.id);
        UpdateActionRequestDialog();
    }
    if (all || request.remove_type == RemoveType::Message) RemoveMessageDialog(request.id);
}

void HandleMessageRequest(XMLElement const& element) {
    MessageRequest request;
    XMLSerialize(element, request);
    ShowMessageDialog(request);
}

void HandleQuietModeStart(XMLElement const& element) {
    inQuietMode = true;
    QuietModeStart period;
    XMLSerialize(element, period);
    if (!IsActionRequestDialogShown()) return;
    ShowQuietModeDialog(Instant(period.start_time), Instant(period.end_time));
    DisableActionRequestDialog();
}

void HandleQuietModeEnd(XMLElement const&) {
    inQuietMode = false;
    RemoveQuietModeDialog();
    if (!IsActionRequestDialogShown()) return;
    UpdateActionRequestDialog();
    EnableActionRequestDialog();
}

void HandleInitializationInfo(XMLElement const& element) {
    if (initialized) return;
    InitializationInfo info;
    XMLSerialize(element, info);
    ApplyInitializationInfo(info);
}

struct Handler {
    std::string_view name;
    void (*handle)(XMLElement const&);
};

constexpr Handler kHandlers[] = {
    {"ActionRequest", HandleActionRequest},   {"InitializationInfo", HandleInitializationInfo},
    {"RemoveRequest", HandleRemoveRequest},   {"MessageRequest", HandleMessageRequest},
    {"QuietModeStart", HandleQuietModeStart}, {"QuietModeEnd", HandleQuietModeEnd},
};

// Unknown names are ignored: a newer client may send them.
void HandleElement(XMLElement const& element) {
    for (auto const& [name, handle] : kHandlers)
        if (element.Name().AsStringView() == name) return handle(element);
}

// Whatever the root is called, its children are the commands. Those behind the one that initializes the process are
// dropped.
void HandleMessage(UIMessage const& message) {
    if (message.Text().empty()) return;
    auto const root = SimpleXML::Parse(message.Text());
    bool const before = initialized;
    for (XMLElement const& element : root->Children()) {
        HandleElement(element);
        if (initialized != before) return;
    }
}

void HandleBatch(Batch& batch) {
    bool const before = initialized;
    while (!batch.IsEmpty()) {
        HandleMessage(batch.TakeFront());
        if (initialized != before) return deferredMessages.Swap(batch);
    }
}

}  // namespace

void ProcessMessagesFromClient() try {
    Batch batch;
    if (deferredMessages.IsEmpty())
        readQ.ReadMessages(batch);
    else
        deferredMessages.Swap(batch);
    HandleBatch(batch);
} catch (...) {
    // Meant: the client learns of a bad message only from the absence of a reaction.
}

void RemoveAction(unsigned long long id) {
    auto const action = actions.Find(id);
    if (action != actions.end()) actions.Erase(action);
}
