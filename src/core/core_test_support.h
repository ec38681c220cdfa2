#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "core/client_messages.h"
#include "core/process/process_state.h"
#include "tools/client_messages.h"

// What the tests of the core share.

// An action in short: its ID, its confirmation text and its title.
inline std::string Short(ActionRequest const& action) {
    std::string text = std::to_string(action.id);
    if (action.pre_action_message) text += action.pre_action_message->Ref().AsStringView();
    return text.append(action.title.Ref().AsStringView());
}

// Has one document of what the lines of a scenario say handled. Unknown elements count for nothing, nor does the root's
// name.
inline void Receive(std::string const& lines) {
    std::istringstream text(lines);
    std::string children = tools::Element("Unknown", "");
    for (std::string line; std::getline(text, line);) children += tools::MessageFor(tools::ParseScenarioLine(line));
    readQ.WriteMessage(UIMessage(UStringRef<UTF8>(tools::Element("AnyRoot", children))));
    ProcessMessagesFromClient();
}

// What has been sent since the last call; what becomes of an action as "taken1" and "cancelled1".
inline std::vector<std::string> Replies() {
    FiFoQueue<UIMessage> sent;
    std::vector<std::string> replies;
    for (writeQ.ReadMessages(sent); !sent.IsEmpty();) {
        auto reply = tools::ReadAnswer(sent.TakeFront().Text().AsStringView());
        auto& fields = reply.fields;
        bool const decided = reply.name == "ActionTaken";
        replies.push_back(decided ? (fields["IsCancel"] == "true" ? "cancelled" : "taken") + fields["ID"]
                                  : reply.Text());
    }
    return replies;
}
