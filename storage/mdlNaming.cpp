// SPDX-License-Identifier: MIT
#include "storage/mdlNaming.h"

#include <algorithm>
#include <optional>

#include "base/mdlBox.h"
#include "base/mdlEncoding.h"
#include "base/mdlGeneral.h"
#include "base/mdlText.h"

namespace vk {

namespace {

constexpr std::string_view kForbidden = "\\/:*?\"<>|";
constexpr std::string_view kExtension = ".DAT";

constexpr const char* kInvalidValue = "Invalid　value";  // with an ideographic space

int32_t refuseSeries(const char* text) {
  showBox("SERIES Error", text);
  return 1;
}

/// The text as it stands in the row's header; empty for one that cannot stand there.
std::optional<std::string> inHeader(const NamingRow& row, std::string_view text) {
  return row.latin1 ? toLatin1(text) : std::string(text);
}

bool fitsHeaders(const NamingList& list, std::string_view text) {
  return std::all_of(list.rows.begin(), list.rows.end(),
                     [&](const NamingRow& row) { return inHeader(row, text).has_value(); });
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
    if (trim(listField(text, i)).empty()) return refuseSeries(kInvalidValue);
  }
  return 0;
}

bool prepareNaming(CardReading& reading, NamingList& list) {
  if (!anyRowChecked(reading)) return false;
  list = {};
  for (CardEntry& file : reading.files) {
    file.nameChanged = file.checked;
    if (file.checked) list.rows.push_back({file.saveFileName, file.seriesText, file.latin1});
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
  // The name stands in the header as well.
  if (!inHeader(list.rows[list.selected], text)) return false;
  list.rows[list.selected].fileName = std::string(text).append(kExtension);
  return true;
}

bool enterSeriesText(NamingList& list, std::string_view text) {
  if (list.selected >= list.seriesCommas.size()) return false;
  if (checkSeriesText(text, list.seriesCommas[list.selected]) != 0) return false;
  const auto series = inHeader(list.rows[list.selected], text);
  if (!series) return refuseSeries(kInvalidValue) == 0;
  list.rows[list.selected].series = *series;
  return true;
}

bool setAllFileNames(NamingList& list, std::string_view prefix) {
  if (checkFileName(prefix) != 0 || !fitsHeaders(list, prefix)) return false;
  for (std::size_t i = 0; i < list.oldFileName.size(); ++i) {
    list.rows[i].fileName = std::string(prefix).append(list.oldFileName[i]);
  }
  return !list.oldFileName.empty();
}

bool setAllSeries(NamingList& list, std::string_view text) {
  if (list.seriesCommas.empty() || checkSeriesText(text, list.seriesCommas.front()) != 0) {
    return false;
  }
  if (!fitsHeaders(list, text)) return refuseSeries(kInvalidValue) == 0;
  for (NamingRow& row : list.rows) row.series = *inHeader(row, text);
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
