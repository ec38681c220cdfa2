#include "dialogs/x_application.h"

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xresource.h>

#include <clocale>
#include <cstdio>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "core/process/ui_command.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_window.h"
#include "localisation/translation_files.h"

namespace {

// ---- What can fail at any moment. The handlers run inside frames of Xlib and Xt, so nothing is thrown through them.

XtErrorMsgHandler defaultWarningMsgHandler = nullptr;

[[noreturn]] void ExitWith(char const* kind, char const* text) noexcept {
    char reason[2048];
    std::snprintf(reason, sizeof reason, "%s: %s", kind, text);
    ExitCleanup(-1, reason);
}

int X_ErrorHandler(Display* failed, XErrorEvent* event) {
    char text[2048] = "";
    XGetErrorText(failed, event->error_code, text, sizeof text);
    ExitWith("XError", *text ? text : "Unknown XError");
}

int X_IOErrorHandler(Display*) {
    ExitCleanup(0, "CLOSED");
}

// Clang takes only what never returns for the toolkit's kind of handler.
_X_NORETURN void Xt_ErrorHandler(String message) {
    ExitWith("XtError", message);
}

[[noreturn]] void ReportMissingFont(char const* name, char const* warning_class) {
    Guarded([&] {
        Stringy text = name;
        if (warning_class) text.append(" (").append(warning_class).append(")");
        ClientUIErrorMessage error(ClientUIErrorMessage::ErrorCode::ToolkitWarning, text);
        SendErrorToClient(error);
    });
    ExitCleanup(0, name);
}

void WarningMsgHandler(String name, String type, String warning_class, String message, String* params,
                       Cardinal* count) {
    if (std::string_view(name) == "noFont") ReportMissingFont(name, warning_class);
    if (defaultWarningMsgHandler) defaultWarningMsgHandler(name, type, warning_class, message, params, count);
}

// ---- The display

void OpenDisplay(int argc, char** argv) {
    if (international) XtSetLanguageProc(nullptr, nullptr, nullptr);
    XtToolkitInitialize();
    app_context = XtCreateApplicationContext();
    OverrideWarningMsgHandler(app_context);
    display = XtOpenDisplay(app_context, nullptr, nullptr, "XQENClientUI", nullptr, 0, &argc, argv);
    if (!display) ExitCleanup(-1, "Error: failed XtOpenDisplay");
}

void DropTranslationsInCLocale() {
    if (!international) return;
    char const* locale = std::setlocale(LC_CTYPE, nullptr);
    std::string_view name = locale ? locale : "";
    if (!name.empty() && name != "C" && name != "POSIX") return;
    international = false;
    DropTranslations();
}

// ---- The default font set

// The height of the font set's largest logical extent in pixels, or null when no font set can be created.
std::optional<int> HeightOfFontSet(char const* pattern) {
    char** missing = nullptr;
    int count = 0;
    char* substitute = nullptr;
    XFontSet made = XCreateFontSet(display, pattern, &missing, &count, &substitute);
    if (missing) XFreeStringList(missing);
    if (!made) return std::nullopt;
    int height = XExtentsOfFontSet(made)->max_logical_extent.height;
    XFreeFontSet(display, made);
    return height;
}

bool ConfiguredFontSetWorks() {
    char* type = nullptr;
    XrmValue value;
    if (!XrmGetResource(XtDatabase(display), "xtDefaultFontSet", "XtDefaultFontSet", &type, &value)) return false;
    return std::string_view(type) == XtRString && HeightOfFontSet(value.addr).has_value();
}

struct FontNames {
    explicit FontNames(char const* pattern) : names(XListFonts(display, pattern, 1000, &count)) {}
    ~FontNames() {
        if (names) XFreeFontNames(names);
    }
    int count = 0;
    char** names;
};

// The pattern of the font set that a font name belongs to: its character set, after the 13th dash, replaced by any. Empty
// for a name with fewer dashes.
std::string FontSetPattern(std::string_view font_name) {
    std::size_t dash = std::string_view::npos;
    for (int i = 0; i < 13; ++i) {
        dash = font_name.find('-', dash + 1);
        if (dash == std::string_view::npos) return {};
    }
    return std::string(font_name.substr(0, dash + 1)) + "*,*";
}

std::string LowestFontSet() {
    FontNames fonts("-*-*-*-r-*-*-*-120-*-*-*-*");
    std::set<std::string> seen;
    std::string winner;
    std::optional<int> lowest;
    for (int i = 0; fonts.names && i < fonts.count; ++i) {
        std::string candidate = FontSetPattern(fonts.names[i]);
        if (candidate.empty() || !seen.insert(candidate).second) continue;
        auto height = HeightOfFontSet(candidate.c_str());
        if (!height || (lowest && *height >= *lowest)) continue;
        lowest = height;
        winner = candidate;
    }
    return winner;
}

// ---- The hidden window

void HiddenWindowEventHandler(XEvent const& event) {
    if (event.type != ClientMessage || std::string_view(event.xclient.data.b, 4) != "open") return;
    QueueCommand(UICommandType::Show, 0, 0, 0);
}

}  // namespace

int InitXApp(int argc, char** argv, void (*tick)()) try {
    XSetErrorHandler(X_ErrorHandler);
    XSetIOErrorHandler(X_IOErrorHandler);
    OpenDisplay(argc, argv);
    DropTranslationsInCLocale();
    ConfigValidDefaultFontSet();
    XtAppSetErrorHandler(app_context, Xt_ErrorHandler);
    RegisterDialogActions();
    RunEvery(1000, tick);
    XtAppMainLoop(app_context);
    return 0;
} catch (...) {
    return 0;
}

void OverrideWarningMsgHandler(XtAppContext context) {
    defaultWarningMsgHandler = XtAppSetWarningMsgHandler(context, WarningMsgHandler);
}

void ConfigValidDefaultFontSet() {
    if (ConfiguredFontSetWorks() || HeightOfFontSet("-*-*-*-R-*-*-*-120-*-*-*-*,*")) return;
    std::string winner = LowestFontSet();
    if (winner.empty()) return;
    XrmDatabase database = XtDatabase(display);
    XrmPutStringResource(&database, "XtDefaultFontSet", winner.c_str());
}

void CreateHiddenWindow() {
    if (!display) return;
    qenHidden = CreateShell("QENClientUIHiddenWindow", nullptr,
                            {{XtNwidth, 32}, {XtNheight, 32}, {XtNmappedWhenManaged, false}});
    XtRealizeWidget(qenHidden);
    OnEvents(qenHidden, NoEventMask, HiddenWindowEventHandler);
    LeadDialogWindows();
}
