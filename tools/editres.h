#pragma once

#include <X11/Xlib.h>

#include <string>
#include <vector>

#include "tools/waiting.h"

namespace tools {

// A widget of another program, as that program describes it.
struct RemoteWidget {
    std::vector<unsigned long> ids;  // from the shell down to this widget, in the program's own numbers
    std::string name;
    std::string class_name;
    Window window;  // 0 while unrealised
};

// Looks into a program from outside: Athena shells answer the Editres protocol (X11/Xmu/EditresP.h) by themselves. Each
// question and each answer travels as an X selection, so an answer also proves that the program's event loop was
// reached after everything it did before.
//
// A program that is gone, does not speak the protocol, or is too slow throws std::runtime_error.
class Editres {
  public:
    // `display` is borrowed. Events on the private window made here are taken from its queue.
    explicit Editres(Display* display);

    // The shell and everything below it, parents before children.
    std::vector<RemoteWidget> ReadTree(Window shell, Milliseconds limit);

    // The text of a widget's resource, "NoValue" when it has none of that name. The program looks the widget up by a
    // number into which only half of a 64-bit address fits: it must run without address randomisation, and under
    // AddressSanitizer this does not work at all.
    std::string ReadResource(Window shell, RemoteWidget const& widget, std::string const& resource, Milliseconds limit);

  private:
    std::string Ask(Window shell, char command, std::string const& question, Milliseconds limit);
    void SendNotice(Window shell);
    void HandOver(XSelectionRequestEvent const& request, std::string const& question);
    std::string TakeAnswer(XSelectionEvent const& event);

    Display* display_;
    Window window_;
    Atom selection_, notice_, command_target_, answer_target_, type_;
    unsigned char serial_ = 0;
};

}  // namespace tools
