#pragma once

#include <X11/Xlib.h>

#include <filesystem>
#include <memory>
#include <string>

#include "tools/editres.h"
#include "tools/windows.h"

namespace tools {

// Sees and does on a display what a user, a window manager or another X program would.
//
// A top-level window goes by its title or by the name of its shell. A widget goes by its path below the shell, as in
// "form.takeActions"; one without a name stands in it with its class, as in "form.viewport.List".
//
// What is not there, or not within a few seconds, throws std::runtime_error.
class DisplayDriver {
  public:
    // `name` as in DISPLAY. See IgnoreErrors for what this changes in the whole process.
    explicit DisplayDriver(std::string const& name);

    // The window of that name, mapped or not; 0 when there is none.
    Window FindWindow(std::string const& name) { return FindTopLevel(display_.get(), name); }
    // Waits until it is on the screen, or until it no longer is.
    Window WaitForWindow(std::string const& name, Milliseconds limit);
    void WaitUntilGone(std::string const& name, Milliseconds limit);

    std::string Title(Window window) { return TitleOf(display_.get(), window); }

    // See Editres::ReadResource for what that needs.
    std::string ReadResource(Window shell, std::string const& path, std::string const& resource);

    // Returns once the program has handled every event sent before, and drawn what follows from them.
    void WaitUntilDrawn(Window shell);

    // With the pointer: a click into the middle of what is visible of a widget, a click on its n-th visible line of text
    // counted from 1, and a drag along its height between two fractions of it.
    void Click(Window shell, std::string const& path);
    void ClickLine(Window shell, std::string const& path, size_t line);
    void Drag(Window shell, std::string const& path, double from, double to);

    // Closes the window as its close button does: through the window manager, or in its stead when none runs.
    void RequestClose(Window window);
    // Sends `text`, at most 20 bytes of it, as a message of a type that no program knows.
    void SendText(Window window, std::string const& text);

    // Of the window with its frame, or of the whole screen when `window` is 0.
    void Screenshot(std::filesystem::path const& file, Window window);

  private:
    struct Closer {
        void operator()(Display* display) const { XCloseDisplay(display); }
    };

    RemoteWidget FindWidget(Window shell, std::string const& path);
    void PointAt(Window window, int x, int y);
    void PressAt(Window window, Area const& place);
    Atom MakeAtom(char const* name) { return XInternAtom(display_.get(), name, False); }
    bool IsManaged();

    std::unique_ptr<Display, Closer> display_;
    Window root_;
    Editres editres_;
};

}  // namespace tools
