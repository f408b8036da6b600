// SPDX-License-Identifier: MIT
// Other file names and series names for files that are to be saved: the rules of the naming
// dialog, on its rows. Rows count from 0; file names carry their ".DAT".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "storage/mdlCardReading.h"

namespace vk {

inline constexpr std::array<CardColumn, 2> kNamingColumns{
    {{"File name", 2000}, {"Series name(Specify by comma space)", 2950}}};

struct NamingRow {
  std::string fileName;
  std::string series;
  bool latin1 = false;  ///< what is typed goes into a header in Latin-1
  bool operator==(const NamingRow&) const = default;
};

/// The state of the dialog.
struct NamingList {
  std::vector<NamingRow> rows;
  std::vector<std::string> oldFileName;  ///< the names at opening
  std::vector<int32_t> seriesCommas;     ///< commas of each series text at opening
  std::size_t selected = 0;
};

/// 0 when the text holds none of \ / : * ? " < > |, else 1.
[[nodiscard]] int32_t checkFileName(std::string_view text);
/// 0 when the text has that many commas and no empty item, else 1 and a box says why.
[[nodiscard]] int32_t checkSeriesText(std::string_view text, int32_t commas);

/// Takes the checked rows in and marks them (nameChanged). False when the dialog is not to open:
/// no row is checked, or the first one has no series.
bool prepareNaming(CardReading& reading, NamingList& list);
/// On the first activation: remembers the old names and the comma counts.
void activateNaming(NamingList& list);
/// cmdSAutoSet is on: one row, or all with the same number of series.
bool canSetAllSeries(const NamingList& list);

/// What the edit boxes show for a row.
struct NamingEdit {
  std::string name;    ///< txtFileName: without the extension
  std::string series;  ///< txtSerName; empty leaves the box as it is
};
NamingEdit selectNamingRow(NamingList& list, std::size_t row);

// Each returns true when rows have changed.
/// Enter in txtFileName; a bad name is dropped silently.
bool enterFileName(NamingList& list, std::string_view text);
/// Enter in txtSerName. A letter that the row's header cannot take is refused like an empty item.
bool enterSeriesText(NamingList& list, std::string_view text);
/// cmdFAutoSet: the text in front of every old name.
bool setAllFileNames(NamingList& list, std::string_view prefix);
/// cmdSAutoSet.
bool setAllSeries(NamingList& list, std::string_view text);

/// cmdSet: hands the rows back to the marked files, in their order.
void copyNamesBack(const NamingList& list, CardReading& reading);
/// After the dialog, also a cancelled one: every row shows the name to save under.
void showSaveNames(CardReading& reading);

}  // namespace vk
