#pragma once

#include "foundation/text/auto_ustring.h"
#include "foundation/time/instant.h"

// The English texts of the catalogue that stand alone, each of them also the key of its translation: translation files in
// use hold these very bytes, so inconsistent capitals, double blanks and "shutdown" as a verb stay as they are.
//
// Each table hands its entries to a macro, ENTRY(name, english). "&" marks the mnemonic letter of a menu entry, and
// "{_tab}" stands before its accelerator.

// clang-format off

// Labels of widgets.
#define LOCALIZED_LABELS(ENTRY) \
    ENTRY(MenuHelp, "&Help") \
    ENTRY(MenuExit, "E&xit Support Center") \
    ENTRY(MenuFile, "&File") \
    ENTRY(PreviewAction, "Preview Action...") \
    ENTRY(ConfirmationCaption, "This action requires you to acknowledge the following confirmation message:") \
    ENTRY(PreActionTitle, "Confirmation Required") \
    ENTRY(SnoozeCaption, "Click Snooze to be reminded again:") \
    ENTRY(TakeAllActions, "Take All Actions") \
    ENTRY(ActionRequestTitle, "Action Requests") \
    ENTRY(Dismiss, "Dismiss") \
    ENTRY(AcceptOffersButton, "Accept") \
    ENTRY(HideOffersButton, "Hide") \
    ENTRY(ToggleHiddenOffersCheck, "Show Hidden Offers") \
    ENTRY(SearchCaption, "Search:") \
    ENTRY(ProgressCaption, "The following actions are currently running on this computer:") \
    ENTRY(ViewPostponed, "View Postponed Actions") \
    ENTRY(AboutTitle, "About Corvane Support Center") \
    ENTRY(MainDialogTitle, "Corvane Support Center") \
    ENTRY(AboutMenu, "&About Corvane Support Center...") \
    ENTRY(Cancel, "Cancel") \
    ENTRY(OK, "OK") \
    ENTRY(EnteringQuietModeTitle, "Entering Restricted Mode") \
    ENTRY(PreviewDialogTitle, "Action Script Preview") \
    ENTRY(LastChangeCap, "Last Status Change:") \
    ENTRY(IssueTimeCap, "Issued Time:") \
    ENTRY(CategoryCap, "Category:") \
    ENTRY(IssuerCap, "Action Issuer:") \
    ENTRY(LineCap, "Last Complete Line Number:") \
    ENTRY(TypeCap, "Script Type:") \
    ENTRY(QuietModeTitle, "Not Currently Available") \
    ENTRY(ScriptBoxCap, "Action Script") \
    ENTRY(RetryCap, "Retry Count:") \
    ENTRY(TryCap, "Application Count:") \
    ENTRY(IDCap, "Action ID:") \
    ENTRY(NameCap, "Action Name:") \
    ENTRY(ActionHistoryTitle, "Action Details") \
    ENTRY(Loading, "Loading...") \
    ENTRY(MenuViewPostponed, "&View Postponed Actions...") \
    ENTRY(MenuPaste, "&Paste{_tab}Ctrl-V") \
    ENTRY(MenuCopy, "&Copy{_tab}Ctrl-C") \
    ENTRY(MenuCut, "Cu&t{_tab}Ctrl-X") \
    ENTRY(MenuEdit, "&Edit") \
    ENTRY(MenuOpen, "&Open Corvane Support Center") \
    ENTRY(MenuViewActionDialog, "Open &Action Requests") \
    ENTRY(MenuHelpAbout, "&About Support Center") \
    ENTRY(MenuHelpContents, "Corvane Support Center &Help Topics")

// Texts that are combined further before they are shown.
#define LOCALIZED_TEXTS(ENTRY) \
    ENTRY(ShutdownNowDescription, "Your system administrator is requesting that you shutdown your computer.  Please save any unsaved work and then take this action to shutdown your computer.") \
    ENTRY(RestartNowDescription, "Your system administrator is requesting that you restart your computer.  Please save any unsaved work and then take this action to restart your computer.") \
    ENTRY(ShutdownNow, "Shutdown Now") \
    ENTRY(RestartNow, "Restart Now") \
    ENTRY(Progress, "Progress") \
    ENTRY(TechnicianTab, "Technician") \
    ENTRY(SupportDashboard, "Dashboard") \
    ENTRY(Offers, "Offers")

// clang-format on

// The catalogue of the fixed texts of the user interface, each translated when it is asked for. Labels come in the
// locale's encoding, texts that are combined further in UTF-8.
//
// No state. All throw what the formatter throws: a faulty translation is not caught here. Main thread only.
class LocalizedStrings {
  public:
#define LOCALIZED_ACCESSOR(name, english) static AutoNullTerminated<char> name();
    LOCALIZED_LABELS(LOCALIZED_ACCESSOR)
#undef LOCALIZED_ACCESSOR
#define LOCALIZED_ACCESSOR(name, english) static AutoUString<UTF8> name();
    LOCALIZED_TEXTS(LOCALIZED_ACCESSOR)
#undef LOCALIZED_ACCESSOR

    // The product's version, four decimal numbers separated by points, and its legal notice with the year.
    static AutoNullTerminated<char> AboutVersion();
    static AutoNullTerminated<char> AboutCopyright();

    // Between which times of day, in the local zone, the user interface is closed. The dates are not shown.
    static AutoNullTerminated<char> EnteringQuietModeExplanation(Instant const& start, Instant const& end);
    static AutoNullTerminated<char> QuietModeExplanation(Instant const& start, Instant const& end);

    // How many actions are pending, with a text of its own for none and for one.
    static AutoNullTerminated<char> TrayTip(unsigned int count);
    // How many offers are new, with a text of its own for one only: meant, none are announced as 0.
    static AutoUString<UTF8> AnnounceOffers(unsigned int count);
};
