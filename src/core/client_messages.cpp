#include "core/client_messages.h"

#include <string_view>

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
Batch& DeferredMessages() {
    static Batch& deferred = NeverDestroyed<Batch>();
    return deferred;
}

void HandleActionRequest(XMLElement const& element) {
    ActionRequest request;
    XMLSerialize(element, request);
    actions.Append(request);
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

void HandleQuietModeEnd() {
    inQuietMode = false;
    RemoveQuietModeDialog();
    if (!IsActionRequestDialogShown()) return;
    UpdateActionRequestDialog();
    EnableActionRequestDialog();
}

// Returns whether the element initialized the process.
bool HandleInitializationInfo(XMLElement const& element) {
    if (initialized) return false;
    InitializationInfo info;
    XMLSerialize(element, info);
    ApplyInitializationInfo(info);
    return true;
}

// Unknown names are ignored: a newer client may send them. Returns whether the element initialized the process.
bool HandleElement(XMLElement const& element) {
    std::string_view name = element.Name().AsStringView();
    if (name == "ActionRequest") HandleActionRequest(element);
    if (name == "InitializationInfo") return HandleInitializationInfo(element);
    if (name == "RemoveRequest") HandleRemoveRequest(element);
    if (name == "MessageRequest") HandleMessageRequest(element);
    if (name == "QuietModeStart") HandleQuietModeStart(element);
    if (name == "QuietModeEnd") HandleQuietModeEnd();
    return false;
}

// Whatever the root is called, its children are the commands. Returns whether one of them initialized the process; those
// behind it are dropped.
bool HandleMessage(UIMessage const& message) {
    if (message.Text().empty()) return false;
    auto root = SimpleXML::Parse(message.Text());
    for (XMLElement const& element : root->Children())
        if (HandleElement(element)) return true;
    return false;
}

void HandleBatch(Batch& batch) {
    while (!batch.IsEmpty()) {
        if (!HandleMessage(batch.TakeFront())) continue;
        DeferredMessages().Swap(batch);
        return;
    }
}

}  // namespace

void ProcessMessagesFromClient() try {
    Batch batch;
    if (DeferredMessages().IsEmpty())
        readQ.ReadMessages(batch);
    else
        DeferredMessages().Swap(batch);
    HandleBatch(batch);
} catch (...) {
    // Meant: the client learns of a bad message only from the absence of a reaction.
}

void RemoveAction(unsigned long long id) {
    auto position = actions.Find(id);
    if (position < actions.size()) actions.Erase(position);
}
