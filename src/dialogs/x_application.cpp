#include "dialogs/x_application.h"

#include <X11/Intrinsic.h>

#include <clocale>
#include <string>
#include <string_view>

#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"
#include "core/process/process_state.h"
#include "dialogs/default_font_set.h"
#include "dialogs/toolkit/callbacks.h"
#include "dialogs/toolkit/dialog_shell.h"
#include "localisation/translation_files.h"

namespace {

XtErrorMsgHandler defaultWarningMsgHandler = nullptr;

int X_ErrorHandler(Display* failed, XErrorEvent* event) {
    char text[2048] = "";
    XGetErrorText(failed, event->error_code, text, sizeof text);
    ExitCleanup(-1, (std::string("XError: ") + (*text ? text : "Unknown XError")).c_str());
}

int X_IOErrorHandler(Display*) {
    ExitCleanup(0, "CLOSED");
}

// Clang takes only what never returns for the toolkit's kind of handler.
_X_NORETURN void Xt_ErrorHandler(String message) {
    ExitCleanup(-1, (std::string("XtError: ") + message).c_str());
}

void ReportMissingFont(char const* name, char const* warningClass) {
    std::string text = name;
    if (warningClass) text.append(" (").append(warningClass).append(")");
    ClientUIErrorMessage error(ClientUIErrorMessage::ErrorCode::ToolkitWarning, text);
    SendErrorToClient(error);
    ExitCleanup(0, text.c_str());
}

void WarningMsgHandler(String name, String type, String warningClass, String message, String* params, Cardinal* count) {
    if (std::string_view(name) == "noFont") ReportMissingFont(name, warningClass);
    if (defaultWarningMsgHandler) defaultWarningMsgHandler(name, type, warningClass, message, params, count);
}

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

}  // namespace

void OverrideWarningMsgHandler(XtAppContext context) {
    defaultWarningMsgHandler = XtAppSetWarningMsgHandler(context, WarningMsgHandler);
}

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
