#pragma once

#include "messages/initialization_info.h"

// Applies the client's first message: empties or creates the base directory, writes the support files into it, chooses
// and loads the translations for the locale, takes over the snooze settings, and marks the process initialized. Main
// thread only, once.
//
// Whatever sub-folder a support file names, it lands in the base directory itself; of several with one name the last
// stays on disk. Where "UseLocale" is set, the locale for characters is taken from the environment (setlocale(3)), and
// `international` is set unless it is the C locale.
//
// Throws before anything is touched: IllegalFileName for a support file whose name is no single path component, and an
// error of the file family (file_errors.h) for a base directory that is empty, relative or the root. Errors of the file
// family later on leave done what was done; the process stays uninitialized and a further message may succeed.
void ApplyInitializationInfo(InitializationInfo const& info);
