#include "messages/client_requests.h"

#include <array>
#include <string_view>
#include <utility>

#include "xml/serialize.h"

ActionRequest::ActionRequest(unsigned long long id_, NullOr<TimeObject> deadline_, UStringRef<UTF8> title_,
                             UStringRef<UTF8> description_, bool cancellable_, bool restart_, bool shutdown_,
                             bool force_run_, bool request_save_, bool use_canned_strings_, NullOr<Text> preview_,
                             NullOr<Text> pre_action_message_)
    : pre_action_message(std::move(pre_action_message_)),
      deadline(std::move(deadline_)),
      short_description(description_),
      preview(std::move(preview_)),
      id(id_),
      title(title_),
      cancellable(cancellable_),
      restart(restart_),
      shutdown(shutdown_),
      force_run(force_run_),
      request_save(request_save_),
      use_canned_strings(use_canned_strings_) {}

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

namespace {

// In the order of the enumeration.
constexpr std::array<char const*, 4> kRemoveTypes = {"Action", "Offer", "Message", "All"};

}  // namespace

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
