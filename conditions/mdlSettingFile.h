// SPDX-License-Identifier: MIT
// Setting files (.set): fourteen lines of labels and words, in two dialects, one for each model
// family. Saving writes what the dialog shows; loading fills row 9 of the box table.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "conditions/mdlDialogConditions.h"
#include "recorder/mdlMeasureSetting.h"

namespace vk {

/// The file's text without its last line end.
std::string buildSettingFileText(const DialogControls& controls);

/// 0, or 1 when the text cannot be read; the record is then of no use.
[[nodiscard]] int32_t parseLowDialect(std::string_view text, MeasureSetting& record);
[[nodiscard]] int32_t parseHighDialect(std::string_view text, MeasureSetting& record);
/// Decides the dialect, parses, checks and stores into row 9; 0, or 1 after a message.
[[nodiscard]] int32_t readSettingFile(std::string_view text);

/// The message of a SettingError; none for a number without a text.
void MeasureSetErrorView(int32_t number);

/// Save: check, file dialog, file. False when nothing was written (a message was shown, or the user
/// cancelled).
bool saveSettingFile(const DialogControls& controls);
/// Load: file dialog, file, row 9. True when row 9 is to be shown in a dialog for that model.
bool loadSettingFile(int32_t dialogModel);

}  // namespace vk
