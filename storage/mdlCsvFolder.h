// SPDX-License-Identifier: MIT
// The conversion of recordings that lie in a folder: its list of data files and the work over the
// checked ones.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "storage/mdlCsvConversion.h"

namespace vk {

/// The state of the form, which carries its controls in before it calls an operation.
struct CsvFolder {
  std::array<std::string, 2> folder;  ///< txtFolder(0) to read from, txtFolder(1) to save in
  std::vector<CardEntry> files;       ///< rows of the list; their name is rowText
  CsvOptions options;
  CsvView view;
};

/// Files ending in "dat" or "DAT", by name. One without its header ends the list with a row that
/// has no header size.
std::vector<CardEntry> recordingsIn(const std::string& folder);
/// There is something to convert; a folder to save in that does not exist is shown.
bool readyToConvert(const CsvFolder& work);
/// The checked rows in order; the first failure ends the work. A recording is divided only when it
/// is longer than the division count.
[[nodiscard]] int32_t convertCheckedFiles(const CsvFolder& work);

}  // namespace vk
