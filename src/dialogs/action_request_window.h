#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "dialogs/action_request_contents.h"
#include "dialogs/toolkit/dialog_window.h"
#include "dialogs/toolkit/list_pane.h"

// What stands in the action request dialog and where: it shows contents that were decided elsewhere, and says which
// control was used. Main thread only.
class ActionRequestWindow {
  public:
    // What becomes of each press, and of a row chosen for snoozing.
    struct Handlers {
        std::function<void()> take_all, take, cancel, details, snooze;
        std::function<void(int row)> row;     // Of an action, by the keyboard.
        std::function<void(int row)> choice;  // Of a snooze.
    };

    bool IsOpen() const { return window_.IsOpen(); }
    Widget Shell() const { return window_.Shell(); }
    ListPane& ActionList() { return action_list_; }
    ListPane& SnoozeList() { return snooze_list_; }

    // Runs `build` by the rule of DialogWindow::Build; it opens, shows contents and presents.
    template <class F>
    void Build(F&& build) {
        window_.Build(std::forward<F>(build));
    }
    [[noreturn]] void ReportUnbuildable() const { window_.ReportUnbuildable(); }
    // Makes the widgets; nothing stands in them yet.
    void Open(Handlers handlers);
    // Puts everything in its place, where it stays whatever is shown from then on, and shows the window.
    void Present(bool asked_for);
    void Close() { window_.Close(); }
    void SetUrgent() { window_.SetUrgent(); }
    void ResetFocus() { window_.ResetFocus(); }

    // Shows the texts, the description as that of the action `described` or, when it is null, of all: what is being read
    // stays in view while its countdown runs.
    void ShowTexts(ActionRequestContents const& contents, unsigned long long const* described);
    void ShowSensitivity(ActionRequestContents const& contents);
    // All buttons and both lists together.
    void SetAllSensitive(bool sensitive);

  private:
    // One thing that the user can use, and what of the contents tells whether it answers.
    struct Control {
        Widget widget;
        bool ActionRequestContents::*sensitive;
    };
    enum { kActionList, kTakeAll, kTake, kCancel, kDetails, kSnoozeList, kSnooze, kControls };

    Widget At(int control) const { return controls_[static_cast<std::size_t>(control)].widget; }
    using Label = AutoNullTerminated<char>;
    // With the first of the labels that it will have.
    Widget AddButton(char const* name, std::initializer_list<Label> labels, Widget below,
                     std::function<void()>& pressed, Anchor anchor = Anchor::BottomLeft);
    void OpenActionPart(Handlers& handlers);
    void OpenButtons(Handlers& handlers);
    void OpenSnoozePart(Handlers& handlers);
    void ShowDescription(char const* text, unsigned long long const* described);
    void LayOut();
    int LayOutButtons();

    DialogWindow window_{"ActionRequestDialog"};
    Widget title_ = nullptr;
    Widget description_ = nullptr;
    Widget snooze_caption_ = nullptr;
    ListPane action_list_;
    ListPane snooze_list_;
    std::array<Control, kControls> controls_ = {};
    std::string shown_description_;                   // What the text widget holds,
    std::optional<unsigned long long> described_id_;  // of this action, or of all.
};
