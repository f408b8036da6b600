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
  bool typed = false;  ///< the list is of a folder that was typed in
};

/// Files ending in "dat" or "DAT", by name. One without its header ends the list with a row that
/// has no header size.
std::vector<CardEntry> recordingsIn(const std::string& folder);
/// Lists the folder to read from. Its rows keep their marks when it is the folder listed before,
/// spelled otherwise; a new one has none.
void listFolder(CsvFolder& work, const std::string& folder);
/// There is something to convert. Else a missing folder is shown, or that nothing is checked in a
/// typed one: whoever types a folder and saves at once has seen no list of it.
bool readyToConvert(const CsvFolder& work, const JobView& view);
/// The checked rows in order; the first failure ends the work. A recording is divided only when it
/// is longer than the division count. After a failure the window empties its progress.
[[nodiscard]] int32_t convertCheckedFiles(const CsvFolder& work, const JobView& view);

}  // namespace vk
