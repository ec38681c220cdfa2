#include "tools/editres.h"

#include <optional>
#include <stdexcept>

#include "tools/waiting.h"
#include "tools/windows.h"

namespace tools {

namespace {

constexpr long kProtocolVersion = 5;
constexpr unsigned long kSendWidgetTree = 0;
constexpr unsigned long kGetValues = 5;
constexpr size_t kAnswerHeaderSize = 6;

// The numbers and strings of a message, most significant byte first.
class Packer {
  public:
    Packer& Number(unsigned long value, int bytes) {
        while (bytes-- > 0) text_ += static_cast<char>(value >> 8 * bytes & 0xff);
        return *this;
    }
    Packer& String(std::string const& text) {
        Number(text.size(), 2);
        text_ += text;
        return *this;
    }
    std::string const& Text() const { return text_; }

  private:
    std::string text_;
};

class Unpacker {
  public:
    explicit Unpacker(std::string text) : text_(std::move(text)) {}

    unsigned long Number(size_t bytes) {
        unsigned long value = 0;
        for (char byte : Take(bytes)) value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    }
    std::string String() { return Take(Number(2)); }
    std::vector<unsigned long> Ids() {
        std::vector<unsigned long> ids(Number(2));
        for (auto& id : ids) id = Number(4);
        return ids;
    }

  private:
    std::string Take(size_t count) {
        if (text_.size() - at_ < count) throw std::runtime_error("an Editres answer is cut short");
        at_ += count;
        return text_.substr(at_ - count, count);
    }

    std::string text_;
    size_t at_ = 0;
};

Bool IsFor(Display*, XEvent* event, XPointer window) {
    return event->xany.window == *reinterpret_cast<Window*>(window);
}

}  // namespace

Editres::Editres(Display* display)
    : display_(display), window_(XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0)) {}

std::map<std::string, RemoteWidget> Editres::ReadTree(Window shell) {
    Unpacker answer(Ask(shell, kSendWidgetTree, ""));
    std::map<std::string, RemoteWidget> tree;
    std::vector<std::string> paths;  // down to the widget read last
    for (auto left = answer.Number(2); left > 0; --left) {
        auto const ids = answer.Ids();
        std::string const name = answer.String(), class_name = answer.String();
        paths.resize(ids.size() - 1);
        std::string path = paths.size() < 2 ? "" : paths.back() + ".";
        if (!paths.empty()) path += name.empty() ? class_name : name;
        paths.push_back(path);
        tree.emplace(path, RemoteWidget{ids, class_name, answer.Number(4)});
    }
    return tree;
}

std::string Editres::ReadResource(Window shell, RemoteWidget const& widget, std::string const& resource) {
    Packer question;
    question.String(resource).Number(1, 2).Number(widget.ids.size(), 2);
    for (unsigned long id : widget.ids) question.Number(id, 4);
    Unpacker answer(Ask(shell, kGetValues, question.Text()));
    return answer.Number(2) == 0 ? "" : answer.String();
}

// The program is told where to fetch the question, fetches it, takes the selection over for its answer, and is asked
// for that in turn.
std::string Editres::Ask(Window shell, unsigned long command, std::string const& question) {
    std::string const text =
        Packer().Number(++serial_, 1).Number(command, 1).Number(question.size(), 4).Text() + question;
    XSetSelectionOwner(display_, selection_, window_, CurrentTime);
    SendNotice(shell);
    std::optional<std::string> answer;
    WaitUntil(std::chrono::seconds(10), [&] {
        XEvent event;
        while (!answer && XCheckIfEvent(display_, &event, IsFor, reinterpret_cast<XPointer>(&window_))) {
            if (event.type == SelectionRequest) HandOver(event.xselectionrequest, text);
            if (event.type == SelectionClear) {
                XConvertSelection(display_, selection_, Named("EditresClientVal"), Named("EditresProtocol"), window_,
                                  CurrentTime);
            }
            if (event.type == SelectionNotify) answer = TakeAnswer(event.xselection);
        }
        return answer.has_value();
    });
    if (!answer) throw std::runtime_error("no Editres answer");
    return *answer;
}

void Editres::SendNotice(Window shell) {
    XClientMessageEvent message{};
    message.window = shell;
    message.message_type = Named("Editres");
    message.format = 32;
    message.data.l[1] = static_cast<long>(selection_);
    message.data.l[2] = serial_;
    message.data.l[3] = kProtocolVersion;
    SendClientMessage(display_, shell, message);
}

void Editres::HandOver(XSelectionRequestEvent const& request, std::string const& question) {
    XChangeProperty(display_, request.requestor, request.property, Named("EditresProtocol"), 8, PropModeReplace,
                    reinterpret_cast<unsigned char const*>(question.data()), static_cast<int>(question.size()));
    XEvent event{};
    event.xselection.type = SelectionNotify;
    event.xselection.requestor = request.requestor;
    event.xselection.selection = request.selection;
    event.xselection.target = request.target;
    event.xselection.property = request.target == Named("EditresCommand") ? request.property : None;
    event.xselection.time = request.time;
    XSendEvent(display_, request.requestor, False, NoEventMask, &event);
    XFlush(display_);
}

// Deletes the property as it reads it: while it stands, the program's toolkit keeps the shell that has answered in mind, and
// ends the program if that is destroyed meanwhile.
std::string Editres::TakeAnswer(XSelectionEvent const& event) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* data = nullptr;
    if (event.property != None) {
        XGetWindowProperty(display_, window_, event.property, 0, 1 << 20, True, Named("EditresProtocol"), &type,
                           &format, &count, &rest, &data);
    }
    std::string answer(reinterpret_cast<char*>(data), data ? count : 0);
    if (data) XFree(data);
    if (answer.size() < kAnswerHeaderSize || answer[1] != 0) throw std::runtime_error("Editres refuses: " + answer);
    return answer.substr(kAnswerHeaderSize);
}

}  // namespace tools
