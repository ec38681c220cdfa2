#include "dialogs/dialog_building.h"

#include "core/process/client_writer.h"
#include "core/process/exit_cleanup.h"

void ReportUnbuildableDialog(char const* name) {
    ClientUIErrorMessage error(ClientUIErrorMessage::ErrorCode::DialogNotShown, name);
    SendErrorToClient(error);
    ExitCleanup(0, "TranscodeError");
}
