#include "dialogs/action_request_window.h"

#include <algorithm>
#include <utility>

#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/read_only_text.h"
#include "foundation/text/local_encoding.h"
#include "localisation/localized_strings.h"
#include "localisation/uformat.h"

namespace {

constexpr int kGap = DialogWindow::kGap;
constexpr int kSnoozeListWidth = 400;

int OuterWidthOf(Widget widget) {
    return WidthOf(widget) + 2 * BorderWidthOf(widget);
}

}  // namespace

void ActionRequestWindow::Open(Handlers handlers) {
    window_.Open(ControlLiteral(LocalizedStrings::ActionRequestTitle()).c_str());
    OpenActionPart(handlers);
    OpenButtons(handlers);
    OpenSnoozePart(handlers);
}

void ActionRequestWindow::OpenActionPart(Handlers& handlers) {
    title_ = window_.AddLabel("actiontitle", "", {.framed = true, .width = 500, .anchor = Anchor::TopWide});
    description_ = window_.AddText("actiondesc", "",
                                   {.below = title_, .height = 70, .sensitive = true, .anchor = Anchor::TopWide});
    shown_description_.clear();
    Widget header = window_.AddLabel("actionListLabel", MakeActionListHeader().c_str(),
                                     {.below = description_, .distance = 10, .framed = true});
    action_list_.Create(window_, "viewport", 485, 100, header, Anchor::AllSides, std::move(handlers.row));
    controls_[kActionList] = {action_list_.List(), &ActionRequestContents::action_list};
    window_.SetFirstFocus(action_list_.List());
}

Widget ActionRequestWindow::AddButton(char const* name, std::initializer_list<Label> labels, Widget below,
                                      std::function<void()>& pressed, Anchor anchor) {
    ButtonTraits traits{.below = below, .anchor = anchor};
    for (auto const& label : labels) traits.other_labels.push_back(label.c_str());
    return window_.AddButton(name, labels.begin()->c_str(), std::move(pressed), traits);
}

void ActionRequestWindow::OpenButtons(Handlers& handlers) {
    using Contents = ActionRequestContents;
    Widget const above = action_list_.Viewport();
    auto set = [this](std::size_t control, Widget button, bool Contents::*sensitive) {
        controls_[control] = {button, sensitive};
    };
    set(kTakeAll, AddButton("takeAllActions", {LocalizedStrings::TakeAllActions()}, above, handlers.take_all),
        &Contents::take_all);
    set(kTake,
        AddButton("takeActions", {ControlLiteral("Take Actions"), ControlLiteral("Take Action")}, above, handlers.take),
        &Contents::take);
    set(kCancel,
        AddButton("cancelAction", {ControlLiteral("Cancel Actions"), ControlLiteral("Cancel Action")}, above,
                  handlers.cancel),
        &Contents::cancel);
    set(kDetails, AddButton("actionDetails", {LocalizedStrings::ActionHistoryTitle()}, above, handlers.details),
        &Contents::details);
}

void ActionRequestWindow::OpenSnoozePart(Handlers& handlers) {
    Widget caption = snooze_caption_ =
        window_.AddLabel("snoozeLabel", LocalizedStrings::SnoozeCaption().c_str(),
                         {.below = At(kTakeAll), .framed = true, .anchor = Anchor::BottomLeft});
    snooze_list_.Create(window_, "snoozeViewport", kSnoozeListWidth, 40, caption, Anchor::BottomLeft, handlers.choice);
    OnChosen(snooze_list_.List(), std::move(handlers.choice));
    controls_[kSnoozeList] = {snooze_list_.List(), &ActionRequestContents::snooze_list};
    Widget snooze = AddButton("snoozeButton", {ControlLiteral("Snooze"), ControlLiteral("Close")}, caption,
                              handlers.snooze, Anchor::BottomRight);
    controls_[kSnooze] = {snooze, &ActionRequestContents::snooze_button};
}

void ActionRequestWindow::Present(bool asked_for) {
    window_.Realize();
    LayOut();
    for (auto const* pane : {&action_list_, &snooze_list_}) ScrollSelectedItemIntoView(pane->Viewport(), pane->List());
    window_.Present({.dialog = false, .asked_for = asked_for});
}

void ActionRequestWindow::ShowTexts(ActionRequestContents const& contents, unsigned long long const* described) {
    SetLabel(title_, OneLine(contents.title.c_str()).c_str());
    SetLabel(At(kTake), contents.take_label.c_str());
    SetLabel(At(kCancel), contents.cancel_label.c_str());
    SetLabel(At(kSnooze), contents.snooze_label.c_str());
    ShowDescription(contents.description.c_str(), described);
}

void ActionRequestWindow::ShowDescription(char const* text, unsigned long long const* described) {
    auto const id = described ? std::optional(*described) : std::nullopt;
    auto const view = id == described_id_ ? View::Kept : View::FromTheBeginning;
    described_id_ = id;
    if (shown_description_ == text) return;
    shown_description_ = text;
    SetText(description_, text, view);
}

void ActionRequestWindow::ShowSensitivity(ActionRequestContents const& contents) {
    for (auto const& control : controls_) SetSensitive(control.widget, contents.*control.sensitive);
    SetMapped(At(kDetails), contents.details_mapped);
    window_.KeepFocusOnWhatReacts();
}

// Whoever decides by the keyboard begins anew each time: a key typed twice decides once.
void ActionRequestWindow::SetAllSensitive(bool sensitive) {
    if (!sensitive) window_.ResetFocus();
    for (auto const& control : controls_) SetSensitive(control.widget, sensitive);
}

// The window is as wide as its buttons need: the texts and the list take the width of the wider row, and "snoozeButton"
// ends where they end, or where the display ends, if it has the room: without it nobody can snooze.
void ActionRequestWindow::LayOut() {
    snooze_list_.Fit(kSnoozeListWidth);
    int const snooze_left = 2 * kGap + OuterWidthOf(snooze_list_.Viewport());
    CutToWidth(At(kSnooze), WidestInDisplay() - snooze_left);
    int const snooze_width = OuterWidthOf(At(kSnooze));
    int const right = std::max(LayOutButtons(), snooze_left + snooze_width);
    PutAt(At(kSnooze), right - snooze_width);

    int const width = right - kGap - 2 * BorderWidthOf(title_);
    for (Widget wide : {title_, description_}) Rewiden(wide, width);
    action_list_.Fit(width);
}

// Puts the buttons side by side, in a row more wherever the display ends, and returns where the widest row ends, in pixels
// from the form's edge.
int ActionRequestWindow::LayOutButtons() {
    int left = kGap, right = 0;
    Widget above = action_list_.Viewport(), first = At(kTakeAll);
    for (int control : {kTakeAll, kTake, kCancel, kDetails}) {
        Widget const button = At(control);
        if (left > kGap && left + OuterWidthOf(button) > WidestInDisplay()) {
            left = kGap;
            above = std::exchange(first, button);
        }
        PutAt(button, left);
        PutBelow(button, above);
        left += OuterWidthOf(button) + kGap;
        right = std::max(right, left - kGap);
    }
    PutBelow(snooze_caption_, first);
    return right;
}
