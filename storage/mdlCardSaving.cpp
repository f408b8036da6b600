// SPDX-License-Identifier: MIT
#include "storage/mdlCardSaving.h"

#include "base/clsDesktop.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "storage/mdlCsvConversion.h"
#include "storage/mdlFileBox.h"

namespace vk {

namespace {

enum class Next { kGoOn, kStop };

/// The file that a save is asked about before it starts.
std::string askedTarget(const CardReading& reading, SaveKind kind, const CardEntry& file) {
  if (kind == kSaveBinary) return withBackslash(reading.folder[0]) + file.saveFileName;
  return withBackslash(reading.folder[1]) + withoutExtension(file.saveFileName) + ".csv";
}

int32_t runOperation(const CardReading& reading, SaveKind kind, std::size_t row,
                     const JobView& view) {
  if (kind == kSaveCsv) return convertToCsv(reading, row, view);
  return readDataFile({reading.serial, reading.files[row], kReadToSave, reading.folder[0]}, view)
      .result;
}

Next saveRow(const CardReading& reading, SaveKind kind, std::size_t row, const JobView& view,
             CardSaved& saved) {
  const CardEntry file = reading.files[row];
  if (file.size == 0) {
    showBox("File Error", "Size of the file is 0 bytes.");
    return Next::kGoOn;
  }
  const std::string target = askedTarget(reading, kind, file);
  const bool divided = kind == kSaveCsv && reading.csv.division;
  if (!divided && findFileAnyCase(target) && askOverwrite(target) != 1) {
    view.tell("canceled.");
    return Next::kGoOn;
  }
  const int32_t result = runOperation(reading, kind, row, view);
  if (desktop().ending()) return Next::kStop;
  if (result != kCardOk) {
    ++saved.failed;
    if (!confirmBox("USB Error", "canceled.", BoxIcon::kExclamation)) {
      view.tell("Communication Error has occurred.");
      return Next::kStop;
    }
  }
  view.tell("Ended.");
  return Next::kGoOn;
}

}  // namespace

CardSaved saveCheckedFiles(const CardReading& reading, SaveKind kind, const JobView& view) {
  CardSaved saved;
  if (reading.files.empty()) return saved;
  saved.any = anyRowChecked(reading);
  if (!saved.any) {
    view.tell("check file.");
    return saved;
  }
  for (std::size_t row = 0; row < reading.files.size() && !desktop().ending(); ++row) {
    if (!reading.files[row].checked) continue;
    if (saveRow(reading, kind, row, view, saved) == Next::kStop) break;
  }
  waveRequestSet = 0;
  return saved;
}

int32_t convertToCsv(const CardReading& reading, std::size_t row, const JobView& view) {
  if (row >= reading.files.size()) return kCardFailed;
  const HourglassGuard hourglass;
  if (!view.yield()) return kCardFailed;
  const CardEntry file = reading.files[row];
  const CardFetched fetched =
      readDataFile({reading.serial, file, kReadForCsv, reading.temporaryFolder}, view);
  if (fetched.result != kCardOk) return kCardFailed;
  view.tellProgress(0);
  CsvJob job;
  job.stem = withoutExtension(file.rowText);
  std::string text;
  if (readHeader(reading.serial, job.stem + ".HED", file.headerSize, text, job.header) != kCardOk) {
    showBadHeader();
    return kCardFailed;
  }
  job.source = fetched.stem + ".dat";
  job.folder = reading.folder[1];
  job.options = reading.csv;
  job.askFirst = reading.csv.division;
  return convertRecording(job, view) == kCardOk ? kCardOk : kCardFailed;
}

}  // namespace vk
