#include "messages/client_requests.h"

#include <array>
#include <utility>

#include "xml/serialize.h"

namespace {

// In the order of the enumeration.
constexpr std::array<char const*, 4> kRemoveTypes = {"Action", "Offer", "Message", "All"};

}  // namespace

ActionRequest::ActionRequest(unsigned long long action_id, NullOr<TimeObject> due, UStringRef<UTF8> title_text,
                             UStringRef<UTF8> description, bool can_cancel, bool restarts, bool shuts_down,
                             bool is_forced, bool asks_to_save, bool uses_canned_strings, NullOr<Text> script,
                             NullOr<Text> question)
    : pre_action_message(std::move(question)),
      deadline(std::move(due)),
      short_description(description),
      preview(std::move(script)),
      id(action_id),
      title(title_text),
      cancellable(can_cancel),
      restart(restarts),
      shutdown(shuts_down),
      force_run(is_forced),
      request_save(asks_to_save),
      use_canned_strings(uses_canned_strings) {}

NullOr<Instant> ActionRequest::Deadline() const {
    if (!deadline) return {};
    return Instant(*deadline);
}

void ActionRequest::SetTitle(UStringRef<UTF8> text) {
    title = Text(text);
}
void ActionRequest::SetDescription(UStringRef<UTF8> text) {
    short_description = Text(text);
}

void XMLSerialize(XMLElement const& element, ActionRequest& request) {
    XMLSerialize(element, "PreActionMessage", request.pre_action_message);
    XMLSerialize(element, "Deadline", request.deadline);
    XMLSerialize(element, "ShortDescription", request.short_description);
    XMLSerialize(element, "Preview", request.preview);
    XMLSerialize(element, "ID", request.id);
    XMLSerialize(element, "Title", request.title);
    XMLSerialize(element, "Cancellable", request.cancellable);
    XMLSerialize(element, "Restart", request.restart);
    XMLSerialize(element, "Shutdown", request.shutdown);
    XMLSerialize(element, "ForceRun", request.force_run);
    XMLSerialize(element, "RequestSave", request.request_save);
    XMLSerialize(element, "UseCannedStrings", request.use_canned_strings);
}

void XMLSerialize(XMLElement const& element, MessageRequest& request) {
    XMLSerialize(element, "IsCompletionMessage", request.is_completion_message);
    XMLSerialize(element, "Timeout", request.timeout);
    XMLSerialize(element, "Title", request.title);
    XMLSerialize(element, "Message", request.message);
    XMLSerialize(element, "ID", request.id);
}

void XMLSerialize(XMLElement const& element, QuietModeStart& period) {
    XMLSerialize(element, "StartTime", period.start_time);
    XMLSerialize(element, "EndTime", period.end_time);
}

void XMLLoad(XMLElement const& element, RemoveRequest& request) {
    Stringy type;
    XMLLoad(element, "RemoveType", type);
    for (std::size_t i = 0; i < kRemoveTypes.size(); ++i)
        if (type == kRemoveTypes[i]) request.remove_type = static_cast<RemoveType>(i);
    XMLLoad(element, "ID", request.id);
}

void XMLSave(XMLWriter& writer, RemoveRequest const& request) {
    XMLSave(writer, "RemoveType", UStringRef<UTF8>(kRemoveTypes[static_cast<std::size_t>(request.remove_type)]));
    XMLSave(writer, "ID", request.id);
}
