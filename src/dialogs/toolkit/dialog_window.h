#pragma once

#include <functional>
#include <vector>

#include "dialogs/toolkit/focus_ring.h"
#include "dialogs/toolkit/widgets.h"

union _XEvent;

// What a window manager should know of the window (Extended Window Manager Hints, EWMH; ICCCM).
struct WindowTraits {
    // A dialog rather than a normal window.
    bool dialog = true;
    // The user has asked for it, so it takes the keyboard. Any other window comes up on top and leaves the keyboard to
    // what the user is doing, until it is clicked.
    bool asked_for = false;
    // The shell that it belongs to and stays above, or null.
    Widget over = nullptr;
};

struct LabelTraits {
    Widget below = nullptr;
    int distance = 0;  // From what it is below; 0 is the form's own.
    bool framed = false;
    bool left = false;   // Lines begin at the left edge rather than stand in the middle.
    int width = 0;       // Kept whatever it says; 0 fits the text.
    int most_lines = 0;  // Text that the display is too narrow for is broken into so many lines; 0 cuts its lines off.
    Anchor anchor = Anchor::TopLeft;
};

struct TextTraits {
    Widget below = nullptr;
    int width = 500;
    int height = 100;
    bool sensitive = false;
    Anchor anchor = Anchor::AllSides;
};

struct ButtonTraits {
    Widget below = nullptr;
    Anchor anchor = Anchor::BottomRight;
    // Texts that it will show at other times: it is as wide as the widest needs.
    std::vector<char const*> other_labels = {};
};

// The window of one dialog: an application shell, the form in it, and the order in which every dialog comes to be.
//
//     DialogWindow window("QuietModeDialog");
//
//     window.Build([] {
//         window.Open(title);
//         Widget label = window.AddLabel("staticlabel", explanation);
//         window.Center(window.AddButton("ok", "OK", Close, {.below = label}), label);
//         window.Present({.over = other_shell});
//     });
//
// A dialog adds what stands in it in the order in which Tab visits it; all texts are in the locale's encoding, and
// copied. Sizes and distances are pixels. Main thread only; the object must outlive its window, and closing it destroys
// every widget in it.
class DialogWindow {
  public:
    // Pixels between neighbours.
    static constexpr int kGap = 4;

    // `name`, a literal, is the shell's, and the one by which a failure is reported.
    explicit DialogWindow(char const* name) : name_(name) {}
    DialogWindow(DialogWindow const&) = delete;
    DialogWindow& operator=(DialogWindow const&) = delete;
    ~DialogWindow() { Close(); }

    bool IsOpen() const { return shell_ != nullptr; }
    // Null while it is not open.
    Widget Shell() const { return shell_; }
    Widget Form() const { return form_; }

    // Runs `build`, which does what follows below; does nothing without a display or while the window is open. Whatever
    // `build` throws, in practice for a text that the locale's encoding cannot represent, is reported to the client under
    // the window's name, with error code 2, and ends the process with status 0.
    template <class F>
    void Build(F&& build);
    // That report and that end.
    [[noreturn]] void ReportUnbuildable() const;

    // Makes the shell, not yet visible, and its empty form. A title has one line.
    void Open(char const* title);

    Widget AddLabel(char const* name, char const* text, LabelTraits const& traits = {});
    Widget AddText(char const* name, char const* text, TextTraits const& traits = {});
    Widget AddButton(char const* name, char const* label, std::function<void()> pressed,
                     ButtonTraits const& traits = {});

    // A control of which the keyboard and the wheel know; texts and buttons are some by themselves.
    void AddControl(Control control) { focus_.Add(std::move(control)); }
    // Which control has the focus at first, and which button Escape presses.
    void SetFirstFocus(Widget widget) { focus_.SetFirst(widget); }
    void SetEscape(Widget button) { focus_.SetEscape(button); }
    // Puts the focus back to the first if what has it no longer reacts.
    void KeepFocusOnWhatReacts() { focus_.KeepOnWhatReacts(); }
    // Puts the focus back to the first: after a decision, so that a key typed twice decides once, and where the buttons
    // have come to mean another action.
    void ResetFocus() { focus_.Reset(); }

    // Puts a button's right edge under that of `above`, or so many pixels left of it.
    void AlignRight(Widget button, Widget above, int left_by = 0);
    // Puts a button under the middle of `above`.
    void Center(Widget button, Widget above);

    // Makes the windows of all that was added, so that everything has its size.
    void Realize();
    // Realizes it, if that was not done yet, puts it in the middle of the display, subscribes it to the window manager's
    // close request (ICCCM 4.2.8.1), tells the window manager what it is, and shows it.
    void Present(WindowTraits const& traits);

    void SetTitle(char const* title);

    // Asks the window manager to draw the user's attention to the window, until it gets the keyboard (ICCCM 4.1.2.4).
    void SetUrgent();

    // What the toolkit hands on of keys, and of the pointer's buttons, the wheel's among them; whether a key was meant for
    // this window. `repeated` says that it is held down. A key may close the window, and with it end this object.
    bool HandleKey(_XEvent const& event, bool repeated);
    void HandleButton(_XEvent const& event);

    // Destroys the window, if it is open.
    void Close();

  private:
    bool MayOpen() const;
    void HandleEvent(_XEvent const& event);
    void HandleMapped();
    void HandleFocus(bool gained);
    void GiveKeyboardOn() const;
    void SetSmallestSize();
    void SetProperties(WindowTraits const& traits);
    void SetTitleProperty(char const* title);

    char const* name_;
    Widget shell_ = nullptr;
    Widget form_ = nullptr;
    std::vector<Widget> texts_;
    FocusRing focus_;
    bool asked_for_ = false;
    Widget over_ = nullptr;
};

// Makes the hidden shell the leader (ICCCM 4.1.11) of the windows that were opened before it; later ones have it at once.
void LeadDialogWindows();

// Puts a shell, its border left out of account, in the middle of the default screen; a larger one gets a negative
// position.
void CenterDialogOnDisplay(Widget shell);

// The action behind the window manager's close request: closing any dialog ends the process with status 0, and nothing
// is sent. Every other event is ignored.
void SystemMenuClose(Widget widget, _XEvent const& event);

// Registers "SystemMenuClose", and "Nothing" for translations that swallow an event, users' own among them, and hands keys
// and the pointer's buttons to the dialogs: once an application, before its first dialog.
void RegisterDialogActions();

template <class F>
void DialogWindow::Build(F&& build) {
    if (!MayOpen()) return;
    try {
        build();
    } catch (...) {
        ReportUnbuildable();
    }
}
