// SPDX-License-Identifier: MIT
#include "storage/mdlNaming.h"

#include <algorithm>

#include "base/clsDesktop.h"
#include "base/mdlGeneral.h"
#include "base/mdlText.h"

namespace vk {

namespace {

constexpr std::string_view kForbidden = "\\/:*?\"<>|";
constexpr std::string_view kExtension = ".DAT";

int32_t refuseSeries(const char* text) {
  desktop().messageBox("SERIES Error", text, BoxButtons::kOk, BoxIcon::kExclamation);
  return 1;
}

}  // namespace

int32_t checkFileName(std::string_view text) {
  return text.find_first_of(kForbidden) == std::string_view::npos ? 0 : 1;
}

int32_t checkSeriesText(std::string_view text, int32_t commas) {
  if (fieldCount(text, ',') != commas) {
    return refuseSeries("Different number of series. (Specify series name by comma space.)");
  }
  for (int32_t i = 1; i <= commas + 1; ++i) {
    if (trim(listField(text, i)).empty()) return refuseSeries("Invalid　value");
  }
  return 0;
}

bool prepareNaming(CardReading& reading, NamingList& list) {
  if (!anyRowChecked(reading)) return false;
  list = {};
  for (CardEntry& file : reading.files) {
    file.nameChanged = file.checked;
    if (file.checked) list.rows.push_back({file.saveFileName, file.seriesText});
  }
  return !list.rows.front().series.empty();
}

void activateNaming(NamingList& list) {
  if (!list.oldFileName.empty()) return;
  for (const NamingRow& row : list.rows) {
    list.oldFileName.push_back(row.fileName);
    list.seriesCommas.push_back(fieldCount(row.series, ','));
  }
}

bool canSetAllSeries(const NamingList& list) {
  return std::all_of(list.seriesCommas.begin(), list.seriesCommas.end(),
                     [&](int32_t commas) { return commas == list.seriesCommas.front(); });
}

NamingEdit selectNamingRow(NamingList& list, std::size_t row) {
  if (row >= list.rows.size()) return {};
  list.selected = row;
  return {withoutExtension(list.rows[row].fileName), list.rows[row].series};
}

bool enterFileName(NamingList& list, std::string_view text) {
  if (list.selected >= list.rows.size() || checkFileName(text) != 0) return false;
  list.rows[list.selected].fileName = std::string(text).append(kExtension);
  return true;
}

bool enterSeriesText(NamingList& list, std::string_view text) {
  if (list.selected >= list.seriesCommas.size()) return false;
  if (checkSeriesText(text, list.seriesCommas[list.selected]) != 0) return false;
  list.rows[list.selected].series = text;
  return true;
}

bool setAllFileNames(NamingList& list, std::string_view prefix) {
  if (checkFileName(prefix) != 0) return false;
  for (std::size_t i = 0; i < list.oldFileName.size(); ++i) {
    list.rows[i].fileName = std::string(prefix).append(list.oldFileName[i]);
  }
  return !list.oldFileName.empty();
}

bool setAllSeries(NamingList& list, std::string_view text) {
  if (list.seriesCommas.empty() || checkSeriesText(text, list.seriesCommas.front()) != 0) {
    return false;
  }
  for (NamingRow& row : list.rows) row.series = text;
  return true;
}

void copyNamesBack(const NamingList& list, CardReading& reading) {
  auto row = list.rows.begin();
  for (CardEntry& file : reading.files) {
    if (!file.nameChanged || row == list.rows.end()) continue;
    file.saveFileName = row->fileName;
    file.seriesText = row->series;
    ++row;
  }
}

void showSaveNames(CardReading& reading) {
  for (CardEntry& file : reading.files) file.rowText = file.saveFileName;
}

}  // namespace vk
