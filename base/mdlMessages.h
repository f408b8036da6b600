// SPDX-License-Identifier: MIT
// The message catalogue: instrument states and errors, file errors, dialog titles and filters.
// Every function takes any number and returns a text; none fails.
#pragma once

#include <cstdint>
#include <string>

namespace vk {

/// Added to a string number to select the language; 5000 is the English table.
extern int32_t gResOffset;

/// The text of a row of the string table; empty for a number the table does not hold.
std::string LoadResString(int32_t number);

/// Instrument states (1 to 5), instrument errors (10 to 99), 100 for an unreadable reply and the
/// library's errors (-1001 to -1012); any other number gives a composed text.
std::string errorText(int32_t number);
/// Run-time file errors (7, 52, 53, 55, 67, 70); any other number gives the general text.
std::string fileErrorText(int32_t number);
/// Long texts (1 to 5) and their short titles (21, 23, 24, 25); empty for any other code.
std::string dataFileErrorText(int32_t code);
/// Titles and filters of the file dialogs (1, 11 to 17, 20); empty for any other code.
std::string fileDialogText(int32_t code);

}  // namespace vk
