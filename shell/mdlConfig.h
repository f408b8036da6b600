// SPDX-License-Identifier: MIT
// The configuration file in the program's data folder, the defaults of everything it holds, and the
// folder of temporary files beside it. The file is read at start and in a reconnect, and written at
// the end and before a reconnect. A file that cannot be read, or stops being readable half way, is
// no failure: what was not read keeps its default.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/mdlConfigText.h"

namespace vk {

/// Result of the last scan for boxes, a StartMode.
extern int32_t gStartMode;

/// Every setting, record and table of the program as before any file was read; the read time-out
/// of the instrument library goes to its default.
void setDefaults();

/// Reads the file, which is written from the present settings when it is missing, and makes the
/// folder of temporary files.
void readConfig();
/// Replaces the file. False after a failure, which is not reported: the old file then stays whole.
bool writeConfig();
/// Deletes every file of the temporary folder (only when `all` is set), then the files named in
/// `fileList`, a CR LF ended line each, up to the first empty line. Failures are not reported.
void clearTempFiles(bool all, std::string_view fileList);

}  // namespace vk
