#pragma once

#include <X11/Xlib.h>

#include <map>
#include <string>
#include <vector>

namespace tools {

// A widget of another program, as that program describes it.
struct RemoteWidget {
    std::vector<unsigned long> ids;  // from the shell down to this widget, in the program's own numbers
    std::string class_name;
    Window window;  // 0 while unrealised
};

// Looks into a program from outside: Athena shells answer the Editres protocol (X11/Xmu/EditresP.h) by themselves. Each
// question and each answer travels as an X selection, so an answer also proves that the program's event loop was
// reached after everything it did before.
//
// A program that is gone, does not speak the protocol, or does not answer in ten seconds throws std::runtime_error.
class Editres {
  public:
    // `display` is borrowed. Events on the private window made here are taken from its queue.
    explicit Editres(Display* display);

    // The shell, as "", and everything below it by its path from there: names with points between them, and the class in
    // place of an empty name. Of several of one path it is the first.
    std::map<std::string, RemoteWidget> ReadTree(Window shell);

    // The text of a widget's resource, "NoValue" when it has none of that name. The program looks the widget up by a
    // number into which only half of a 64-bit address fits: it must run without address randomisation, and under
    // AddressSanitizer this does not work at all.
    std::string ReadResource(Window shell, RemoteWidget const& widget, std::string const& resource);

  private:
    Atom Named(char const* name) { return XInternAtom(display_, name, False); }
    std::string Ask(Window shell, unsigned long command, std::string const& question);
    void SendNotice(Window shell);
    void HandOver(XSelectionRequestEvent const& request, std::string const& question);
    std::string TakeAnswer(XSelectionEvent const& event);

    Display* display_;
    Window window_;
    Atom selection_ = Named("EditresComm");
    unsigned char serial_ = 0;
};

}  // namespace tools
