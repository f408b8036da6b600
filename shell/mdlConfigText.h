// SPDX-License-Identifier: MIT
// The text of the configuration file: two warning lines, a title and the keys, each with one value
// or with the values of all records of a monitor kind as a comma list. The keys of the monitors
// come from the rows of their kinds. The view settings that only this file knows stand here too.
//
// Reading finds the first occurrence of a key anywhere in the text, so a caption that spells a
// later key takes its place, and a caption with a comma shifts the captions behind it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vk {

/// The shortcut bar and the status bar are visible.
extern bool gShowShortcut;
extern bool gShowStatus;
/// Layout of the status bar: 0 eight panels side by side, 1 a main panel and the seven others.
extern int32_t gStatusMode;
/// Row (1 to 8) that the main panel shows.
extern int32_t gMainBox;
/// A row number outside 1 to 8 becomes 1.
int32_t validMainBox(int32_t row);
/// What a panel shows: 0 serial number, 1 card text, 2 master or slave, 3 model.
extern int32_t gStatusContents;

/// The whole file, its last line without a line end.
std::string configText();
/// Takes every value from the text, kind by kind and record by record, then the single values.
/// False when a value could not be read: the reading ends there and the rest keeps what it had.
/// View settings outside their range come back as their defaults.
bool readConfigText(std::string_view text);
/// The keys of the file, in its order.
int32_t configKeyCount();
/// The text of key n, from 0, without the blank that follows it in the file.
std::string_view configKeyName(int32_t number);

}  // namespace vk
