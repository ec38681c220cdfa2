#include "dialogs/action_request_window.h"

#include <algorithm>
#include <utility>

#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/read_only_text.h"
#include "localisation/localized_strings.h"
#include "localisation/uformat.h"

namespace {

constexpr int kGap = 4;  // Pixels between neighbours.
constexpr int kSnoozeListWidth = 400;

// The label is one line high: of several it would show those in the middle.
std::string OneLine(char const* text) {
    std::string line = text;
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

int OuterWidthOf(Widget widget) {
    return WidthOf(widget) + 2 * BorderWidthOf(widget);
}

}  // namespace

void ActionRequestWindow::Open(ActionRequestContents const& contents, Handlers handlers) {
    window_.Open(ControlLiteral(LocalizedStrings::ActionRequestTitle()).c_str());
    window_.SetFormDistance(kGap);
    OpenActionPart(contents);
    OpenButtons(contents, handlers);
    OpenSnoozePart(contents, handlers);
}

void ActionRequestWindow::OpenActionPart(ActionRequestContents const& contents) {
    title_ = window_.AddLabel("actiontitle", OneLine(contents.title.c_str()).c_str(), {.framed = true, .width = 500});
    description_ = window_.AddText("actiondesc", "",
                                   {.below = title_, .height = 70, .sensitive = true, .anchor = Anchor::TopLeft});
    shown_description_.clear();
    Widget header = window_.AddLabel("actionListLabel", MakeActionListHeader().c_str(),
                                     {.below = description_, .distance = 10, .framed = true});
    action_list_.Create(window_, "viewport", 485, 100, header);
    controls_[kActionList] = {action_list_.List(), &ActionRequestContents::action_list};
}

void ActionRequestWindow::OpenButtons(ActionRequestContents const& contents, Handlers& handlers) {
    auto add = [&](auto const* name, AutoNullTerminated<char> const& label, std::function<void()>& pressed) {
        return window_.AddButton(name, label.c_str(), std::move(pressed),
                                 {.below = action_list_.Viewport(), .anchor = Anchor::TopLeft});
    };
    using Contents = ActionRequestContents;
    controls_[kTakeAll] = {add("takeAllActions", LocalizedStrings::TakeAllActions(), handlers.take_all),
                           &Contents::take_all};
    controls_[kTake] = {add("takeActions", contents.take_label, handlers.take), &Contents::take};
    controls_[kCancel] = {add("cancelAction", contents.cancel_label, handlers.cancel), &Contents::cancel};
    controls_[kDetails] = {add("actionDetails", LocalizedStrings::ActionHistoryTitle(), handlers.details),
                           &Contents::details};
}

void ActionRequestWindow::OpenSnoozePart(ActionRequestContents const& contents, Handlers& handlers) {
    Widget caption = window_.AddLabel("snoozeLabel", LocalizedStrings::SnoozeCaption().c_str(),
                                      {.below = At(kTakeAll), .framed = true});
    snooze_list_.Create(window_, "snoozeViewport", kSnoozeListWidth, 40, caption);
    OnChosen(snooze_list_.List(), std::move(handlers.choice));
    controls_[kSnoozeList] = {snooze_list_.List(), &ActionRequestContents::snooze_list};
    Widget snooze = window_.AddButton("snoozeButton", contents.snooze_label.c_str(), std::move(handlers.snooze),
                                      {.below = caption, .anchor = Anchor::TopLeft});
    controls_[kSnooze] = {snooze, &ActionRequestContents::snooze_button};
}

void ActionRequestWindow::Present() {
    window_.Realize();
    LayOut();
    for (auto const* pane : {&action_list_, &snooze_list_}) ScrollSelectedItemIntoView(pane->Viewport(), pane->List());
    window_.Present({.dialog = false});
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
}

void ActionRequestWindow::SetAllSensitive(bool sensitive) {
    for (auto const& control : controls_) SetSensitive(control.widget, sensitive);
}

// The window is as wide as its buttons need: the texts and the list take the width of the wider row, and "snoozeButton"
// ends where they end, or where the display ends, if it has the room: without it nobody can snooze.
void ActionRequestWindow::LayOut() {
    snooze_list_.Fit(kSnoozeListWidth);
    int const snooze_width = OuterWidthOf(At(kSnooze));
    int const snooze_right = kGap + OuterWidthOf(snooze_list_.Viewport()) + kGap + snooze_width;
    int const right = std::max(LayOutButtonRow(), snooze_right);
    int const reachable_right = std::max(std::min(right, DisplayWidthInPixels() - 4 * kGap), snooze_right);
    PutAt(At(kSnooze), reachable_right - snooze_width);

    int const width = right - kGap - 2 * BorderWidthOf(title_);
    for (Widget wide : {title_, description_})
        if (WidthOf(wide) != ClampedSize(width)) Rewiden(wide, width);
    action_list_.Fit(width);
}

// Puts the buttons side by side and returns where the row ends, in pixels from the form's edge.
int ActionRequestWindow::LayOutButtonRow() {
    int left = kGap;
    for (int button : {kTakeAll, kTake, kCancel, kDetails}) {
        PutAt(At(button), left);
        left += OuterWidthOf(At(button)) + kGap;
    }
    return left - kGap;
}
