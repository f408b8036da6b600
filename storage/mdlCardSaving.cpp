// SPDX-License-Identifier: MIT
// Saving the checked files, one after the other.
#include "base/clsDesktop.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "storage/mdlCardReading.h"
#include "storage/mdlWaveOpenRequest.h"

namespace vk {

namespace {

enum class Next { kGoOn, kStop };

void showMessage(const CardReading& reading, const char* text) {
  if (reading.view.setMessage) reading.view.setMessage(text);
}

/// The file that a save is asked about before it starts.
std::string askedTarget(const CardReading& reading, SaveKind kind, const CardEntry& file) {
  if (kind == kSaveBinary) return withBackslash(reading.folder[0]) + file.saveFileName;
  return withBackslash(reading.folder[1]) + withoutExtension(file.saveFileName) + ".csv";
}

int32_t runOperation(CardReading& reading, SaveKind kind, std::size_t row) {
  if (kind == kSaveBinary) return readDataFile(reading, kReadToSave, row);
  return gConvertToCsv(reading, row);
}

Next saveRow(CardReading& reading, SaveKind kind, std::size_t row) {
  const CardEntry file = reading.files[row];
  if (file.size == 0) {
    desktop().messageBox("File Error", "Size of the file is 0 bytes.", BoxButtons::kOk,
                         BoxIcon::kExclamation);
    return Next::kGoOn;
  }
  const std::string target = askedTarget(reading, kind, file);
  const bool divided = kind == kSaveCsv && reading.csv.division;
  if (!divided && findFileAnyCase(target) && askOverwrite(target) != 1) {
    showMessage(reading, "canceled.");
    return Next::kGoOn;
  }
  const int32_t result = runOperation(reading, kind, row);
  if (desktop().ending()) return Next::kStop;
  if (result != kCardOk) {
    const BoxAnswer answer = desktop().messageBox("USB Error", "canceled.", BoxButtons::kOkCancel,
                                                  BoxIcon::kExclamation);
    if (answer != BoxAnswer::kOk) {
      showMessage(reading, "Communication Error has occurred.");
      return Next::kStop;
    }
  }
  showMessage(reading, "Ended.");
  return Next::kGoOn;
}

}  // namespace

void saveCheckedFiles(CardReading& reading, SaveKind kind) {
  if (reading.files.empty() || (kind == kSaveCsv && !gConvertToCsv)) return;
  if (!anyRowChecked(reading)) {
    showMessage(reading, "check file.");
    return;
  }
  for (std::size_t row = 0; row < reading.files.size() && !desktop().ending(); ++row) {
    if (reading.files[row].checked && saveRow(reading, kind, row) == Next::kStop) break;
  }
  waveRequestSet = 0;
  if (reading.view.setPercentText) reading.view.setPercentText("");
  if (reading.view.setPercent) reading.view.setPercent(0);
}

}  // namespace vk
