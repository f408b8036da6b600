// SPDX-License-Identifier: MIT
// The recordings on a box's card as the card window shows them: the list of its files, their
// headers, tabs and controls. storage/mdlCardTransfer.h fetches them, storage/mdlCardSaving.h saves
// the checked ones.
//
// Sizes are bytes, rows count from 0. Results are 0 for success and -1 for a failure that has been
// shown; a program that is ending makes every operation stop at its next yield, with nothing shown.
// While an operation runs the window keeps its controls locked: the yields let clicks through.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdlJob.h"
#include "link/mdlCardDirectory.h"
#include "storage/mdlCsvText.h"
#include "storage/mdlHedDataWork.h"

namespace vk {

enum CardTab : int { kTabWave = 1, kTabBinary = 2, kTabCsv = 3 };

inline constexpr int32_t kCardOk = 0;
inline constexpr int32_t kCardFailed = -1;
/// A header below this size is not shown by a click on its row.
inline constexpr int64_t kMinShownHeader = 300;

/// Columns of the file list and their widths in twips; the last two are hidden stores.
struct CardColumn {
  std::string_view title;
  int32_t twips;
};
inline constexpr std::array<CardColumn, 5> kCardColumns{
    {{"Name", 2000}, {"Size", 1200}, {"Date", 1750}, {"HeadderSize", 1}, {"Series", 1}}};

/// One data file of the card: a row of the list.
struct CardEntry {
  std::string cardFileName;    ///< as on the card, with ".DAT"; all transfers use it
  std::string saveFileName;    ///< to save under, with ".DAT"
  std::string rowText;         ///< the row's shown name: one of the two above, by tab
  std::string sizeText;        ///< column "Size"
  std::string date;            ///< column "Date"
  std::string headerSizeText;  ///< hidden column "HeadderSize"
  std::string seriesText;      ///< hidden column "Series"; empty after an unreadable header
  int64_t size = 0;
  int64_t headerSize = 0;
  bool latin1 = false;       ///< the header's own bytes are not valid UTF-8
  bool nameChanged = false;  ///< taken into the naming dialog
  bool checked = false;      ///< the row's check box, on the saving tabs
};

/// The state of the card window. The window carries its controls in (tab, folder, division, check
/// boxes) before it calls an operation.
struct CardReading {
  int32_t serial = 0;
  int tab = kTabWave;
  std::vector<CardEntry> files;       ///< in the order of the card's directory
  std::string lastClicked;            ///< name of the row clicked last on the wave tab
  std::array<std::string, 2> folder;  ///< txtFolder(0) binary, txtFolder(1) CSV
  CsvOptions csv;                     ///< chkDivision, cmbDivision, optCoeff
  std::string temporaryFolder;        ///< the program's tmp folder
};

/// A shown name without its last four characters.
std::string withoutExtension(const std::string& name);

// --- opening --------------------------------------------------------------------------------

/// The rows of a directory, each header confirmed; an unreadable one is shown and keeps its row.
/// With none the window switches emptyCardControls off and skips the division list and folders.
std::vector<CardEntry> confirmHeaders(int32_t serial, const std::vector<CardFile>& directory,
                                      const JobView& view);
/// 5000, 10000 to 65000; the first is selected.
std::vector<int32_t> divisionCounts();
/// Makes the application's own folder the default folder when that does not exist. Shown in both
/// txtFolder afterwards, and what is returned.
std::string settleDefaultFolder();

// --- tabs and controls ----------------------------------------------------------------------

struct CardTabView {
  std::string_view panel;  ///< the one of picWave, picBinSave, picCSVSave that shows
  bool checkBoxes;
  bool clearHead;  ///< txtHead is emptied
  int folderBox;   ///< txtFolder that shows the default folder, -1 for none
  bool canRun;     ///< cmdRun is on
};
CardTabView cardTabView(int tab, std::size_t fileCount);
/// Remembers the tab and sets every rowText to the name that the tab shows.
void selectCardTab(CardReading& reading, int tab);
/// mnuASelect and mnuACancel.
void checkAllRows(CardReading& reading, bool on);
bool anyRowChecked(const CardReading& reading);

/// Control names; elements of control arrays as "txtFolder(0)".
using ControlNames = std::vector<std::string_view>;
/// Off for the window's life when the card holds no data file.
const ControlNames& emptyCardControls();
/// Off during an operation, and on again after it.
ControlNames lockedControls(int tab);

/// What pbrFile and lblPrgCnt show of a job's progress.
int percentOf(double fraction);

// --- headers --------------------------------------------------------------------------------

/// HFL with the name as given, then the checks; shows "Cannot read Header File." on any failure.
[[nodiscard]] int32_t readHeader(int32_t serial, const std::string& name, int64_t size,
                                 std::string& text, HeaderRecord& record);

struct SelectedHeader {
  bool shown = false;  ///< the text goes to txtHead and cmdRun is switched on
  std::string text;    ///< for display: ends at the first NUL
};
/// A click on a row; acts on the wave tab only, and only when the name differs from the last one.
SelectedHeader clickCardRow(CardReading& reading, std::size_t row);
/// The row's header, unless it is below kMinShownHeader.
SelectedHeader showSelectedHeader(const CardReading& reading, std::size_t row);

}  // namespace vk
