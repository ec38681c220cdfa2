#pragma once

#include <X11/Xlib.h>

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/editres.h"
#include "tools/pixels.h"
#include "tools/waiting.h"
#include "tools/windows.h"

namespace tools {

// Sees and does on a display what a user, a window manager or another X program would.
//
// A top-level window goes by its title or by the name of its shell. A widget goes by its path below the shell, as in
// "form.takeActions"; one without a name stands in it with its class, as in "form.viewport.List". The scroll bar of a text
// goes by the text's path and ".vScrollbar".
//
// What is not there, or not within a few seconds, throws std::runtime_error.
class DisplayDriver {
  public:
    // `name` as in DISPLAY. See IgnoreErrors for what this changes in the whole process.
    explicit DisplayDriver(std::string const& name);

    Display* Connection() { return display_.get(); }

    // The window of that name, mapped or not; 0 when there is none.
    Window FindWindow(std::string const& name) { return FindTopLevel(display_.get(), name); }
    // The one that the program never shows.
    Window FindHiddenWindow() { return FindWindow("QENClientUIHiddenWindow"); }
    // How many top-level windows have that name, on the screen or not. A window manager's frames hide theirs.
    size_t Count(std::string const& name);
    // Waits until it is on the screen and is not `other`, or until it no longer is.
    Window WaitForWindow(std::string const& name, Milliseconds limit, Window other = None);
    void WaitUntilGone(std::string const& name, Milliseconds limit);

    std::string Title(Window window) { return TitleOf(display_.get(), window); }

    // See PropertyOf.
    std::string ReadProperty(Window window, std::string const& name) {
        return PropertyOf(display_.get(), window, name);
    }
    // The name of the window that has the keyboard, as the window manager tells.
    std::string ActiveWindow() { return ReadProperty(root_, "_NET_ACTIVE_WINDOW"); }

    // See Editres::ReadResource for what that needs.
    std::string ReadResource(Window shell, std::string const& path, std::string const& resource);

    // The paths of all lists and buttons that are sensitive.
    std::set<std::string> SensitiveControls(Window shell);

    // The path of the control that is outlined, as what has the focus is; of all of them, if there are more, or "none".
    std::string OutlinedControls(Window shell);

    // What a user selects by dragging the pointer over all that is visible of a text: nothing when it is insensitive.
    std::string ReadText(Window shell, std::string const& path);

    // Returns once the program has handled every event sent before, and drawn what follows from them.
    void WaitUntilDrawn(Window shell);

    // The pointer, and a click, wherever that is on the screen.
    void PointAt(int x, int y);
    void PressAt(int x, int y);
    // With the pointer: a click into the middle of what is visible of a widget, and the same on a button once it answers
    // to the pointer, as a sensitive one does by its frame.
    void Press(Window shell, std::string const& path);
    void Click(Window shell, std::string const& path);
    // Clicks on the n-th visible line of a list, counted from 1, until it is highlighted.
    void SelectLine(Window shell, std::string const& path, size_t line);
    // Whether two of these lines look the same.
    bool LinesLookAlike(Window shell, std::string const& path, size_t one, size_t other);
    // Types a key by its name (X11/keysymdef.h), as in "Return", "Shift+Tab" or "Control+c", wherever the keyboard is.
    void Type(std::string const& key);
    // Turns the wheel once over a widget.
    void TurnWheel(Window shell, std::string const& path, bool up);
    // A drag with some button along a widget's height between two fractions of it.
    void Drag(Window shell, std::string const& path, double from, double to, unsigned button = Button1);

    // As with the mouse at its frame.
    void Resize(Window window, unsigned width, unsigned height);
    // Opens a window of that name in which the user then works: clicks into it until it has the keyboard.
    void WorkIn(std::string const& name);
    // The name of the window that covers the others.
    std::string UppermostWindow();

    // Closes the window as its close button does: through the window manager, or in its stead when none runs.
    void RequestClose(Window window);
    // Sends the window what a window manager would, as "WM_TAKE_FOCUS".
    void SendProtocol(Window window, char const* protocol);
    // What a misbehaving program can do to another one's window, and to its connection.
    void Destroy(Window window);
    void KillOwner(Window window);
    // Leaves the server, of all its fonts, the pointers and these of the packages' fonts, each under the name behind it.
    // One that no package has is listed, but cannot be opened. The directory must stay as long as the server.
    void LeaveFonts(std::filesystem::path const& directory, std::map<std::string, std::string> fonts);
    // Sends what another program does to bring the action requests up, or the same with other data, of 20 bytes at most.
    void SendOpen(std::string_view data = "open");

    // What the screen shows at a place in a window.
    unsigned long PixelIn(Window window, int x, int y);
    // Of the window with its frame, or of the whole screen when `window` is 0.
    void Screenshot(std::filesystem::path const& file, Window window);

  private:
    struct Closer {
        void operator()(Display* display) const { XCloseDisplay(display); }
    };

    Window WindowOf(Window shell, std::string const& path);
    RemoteWidget FindWidget(Window shell, std::string const& path);
    std::vector<TextLine> LinesOf(Window shell, Window list, size_t least);
    bool AnswersPointer(Window shell, Window button);
    // Whether the window is what is under the pointer there.
    bool Point(Window window, int x, int y);
    void PointAt(Window window, int x, int y);
    void PressOn(Window window, Area const& place);
    void Button(unsigned button, bool down);
    XClientMessageEvent MessageTo(Window window, char const* type, int format);

    std::unique_ptr<Display, Closer> display_;
    Window root_;
    Editres editres_;
};

}  // namespace tools
