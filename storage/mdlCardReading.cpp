// SPDX-License-Identifier: MIT
#include "storage/mdlCardReading.h"

#include <algorithm>
#include <limits>

#include "base/clsDesktop.h"
#include "base/mdlBox.h"
#include "base/mdlEncoding.h"
#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"

namespace vk {

namespace {

constexpr int32_t kDivisionStep = 5000;
constexpr int32_t kDivisions = 13;
constexpr std::size_t kExtensionLength = 4;

constexpr std::string_view kSavingControls[] = {
    "txtFolder(0)", "txtFolder(1)", "cmdFolder(0)", "cmdFolder(1)", "chkDivision",
    "cmbDivision",  "optCoeff(0)",  "optCoeff(1)",  "cmdCSVSave",   "cmdBinSave",
};

CardEntry entryOf(const CardFile& file) {
  CardEntry entry;
  entry.cardFileName = listField(file.text, 1);
  entry.saveFileName = entry.cardFileName;
  entry.rowText = entry.cardFileName;
  entry.sizeText = listField(file.text, 2);
  entry.date = listField(file.text, 3);
  entry.headerSizeText = listField(file.text, 4);
  entry.size = file.size;
  entry.headerSize = file.headerSize;
  return entry;
}

}  // namespace

std::string withoutExtension(const std::string& name) {
  return left(name, name.size() - std::min(name.size(), kExtensionLength));
}

std::vector<CardEntry> confirmHeaders(int32_t serial, const std::vector<CardFile>& directory,
                                      const JobView& view) {
  std::vector<CardEntry> files;
  files.reserve(directory.size());
  for (const CardFile& file : directory) {
    CardEntry& entry = files.emplace_back(entryOf(file));
    std::string text;
    HeaderRecord header;
    if (readHeader(serial, withoutExtension(entry.rowText), entry.headerSize, text, header) ==
        kCardOk) {
      entry.seriesText = header[kSeries];
      entry.latin1 = !isUtf8(text);
    }
    view.tellProgress(static_cast<double>(files.size()) / directory.size());
    if (!view.yield()) break;
  }
  return files;
}

std::vector<int32_t> divisionCounts() {
  std::vector<int32_t> counts;
  for (int32_t i = 1; i <= kDivisions; ++i) counts.push_back(i * kDivisionStep);
  return counts;
}

std::string settleDefaultFolder() {
  gDefaultFolder = presentDefaultFolder();
  return gDefaultFolder;
}

CardTabView cardTabView(int tab, std::size_t fileCount) {
  switch (tab) {
    case kTabBinary:
      return {"picBinSave", true, true, 0, false};
    case kTabCsv:
      return {"picCSVSave", true, true, 1, false};
    default:
      return {"picWave", false, false, -1, fileCount > 0};
  }
}

void selectCardTab(CardReading& reading, int tab) {
  reading.tab = tab;
  for (CardEntry& file : reading.files) {
    file.rowText = tab == kTabWave ? file.cardFileName : file.saveFileName;
  }
}

void checkAllRows(CardReading& reading, bool on) {
  for (CardEntry& file : reading.files) file.checked = on;
}

bool anyRowChecked(const CardReading& reading) {
  return std::any_of(reading.files.begin(), reading.files.end(),
                     [](const CardEntry& file) { return file.checked; });
}

const ControlNames& emptyCardControls() {
  static const ControlNames names = {
      "cmdCSVSave",   "cmdBinSave",  "cmdFileSerNameChange", "cmdRun",      "cmdFolder(0)",
      "cmdFolder(1)", "cmbDivision", "chkDivision",          "optCoeff(0)", "optCoeff(1)"};
  return names;
}

ControlNames lockedControls(int tab) {
  ControlNames names{"cmdCancel"};
  names.insert(names.end(), std::begin(kSavingControls), std::end(kSavingControls));
  names.push_back("cmdFileSerNameChange");
  if (tab == kTabWave) names.push_back("cmdRun");
  return names;
}

int percentOf(double fraction) {
  return roundWhole(fraction * 100);
}

int32_t readHeader(int32_t serial, const std::string& name, int64_t size, std::string& text,
                   HeaderRecord& record) {
  record = {};
  // A size that no header has is left to the exchange, which refuses it.
  const auto asked =
      static_cast<int32_t>(std::clamp<int64_t>(size, 0, std::numeric_limits<int32_t>::max()));
  if (usbHFL(serial, name, asked, text) != kUsbOk || checkHeaderText(text) != 0 ||
      textToHeader(text, record) != 0) {
    showBox("Header File Error", "Cannot read Header File.");
    return kCardFailed;
  }
  return kCardOk;
}

SelectedHeader clickCardRow(CardReading& reading, std::size_t row) {
  if (reading.tab != kTabWave || row >= reading.files.size()) return {};
  const std::string& name = reading.files[row].rowText;
  if (name == reading.lastClicked) return {};
  reading.lastClicked = name;
  return showSelectedHeader(reading, row);
}

SelectedHeader showSelectedHeader(const CardReading& reading, std::size_t row) {
  if (row >= reading.files.size()) return {};
  const CardEntry& file = reading.files[row];
  if (file.headerSize < kMinShownHeader) return {};
  std::string text;
  HeaderRecord header;
  const int32_t result =
      readHeader(reading.serial, withoutExtension(file.rowText), file.headerSize, text, header);
  if (result != kCardOk && desktop().ending()) return {};
  return {true, text.substr(0, text.find('\0'))};
}

}  // namespace vk
