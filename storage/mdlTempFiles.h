// SPDX-License-Identifier: MIT
// The files that were fetched only to be looked at or converted. The main window hands the list on
// when the program ends, and they are deleted.
#pragma once

#include <string>

namespace vk {

/// One path a line, each line with its CR LF.
inline std::string gTempFileList;

}  // namespace vk
