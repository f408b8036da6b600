// SPDX-License-Identifier: MIT
// The table of recorders: rows 1 to 8 are boxes in the order of the library's device numbers,
// row 9 serves a loaded setting file. A row counts as connected when its handle is 0 or more.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/mdlOneBased.h"
#include "recorder/mdlMeasureSetting.h"

namespace vk {

extern OneBased<MeasureSetting, kFileRow> gBoxTable;

/// What a box panel last showed, to redraw it on change only.
struct BoxShadow : BoxIdentity, BoxStatus {};
extern OneBased<BoxShadow, kFileRow> gBoxShadow;

/// Sets both tables to their start values, which begins a new age of the box table.
void resetBoxTable();
/// Grows with every reset. Who has let events run tells by it that the boxes are other ones now.
uint32_t boxTableAge();

/// The serial as it is shown and sent: at least seven digits.
std::string serialText(int32_t serial);

/// The row stands for a box that answers.
inline bool isConnected(const BoxIdentity& row) {
  return row.handle >= 0;
}

inline constexpr std::string_view kDisconnect = "disconnect";
/// The seven-digit serial of a connected row, else "disconnect".
std::string serialOrDisconnect(const MeasureSetting& row);

/// Handle of the first of rows 1 to 8 with this serial (also of an empty row for kNoSerial, and a
/// negative one of a lost row); 1 when no row matches: a stale serial reaches the first box.
int32_t slotOf(int32_t serial);
/// Row number 1 to 8 of the serial; -1 without a match and for kNoSerial.
int32_t slotIndexOf(int32_t serial);
/// Model of the matching row, else 0; 0 for kNoSerial.
int32_t familyOf(int32_t serial);

/// Rows whose panel data differ from the shadow, which is brought up to date. The card text is
/// compared without regard to case.
std::array<bool, kBoxes + 1> takeChangedRows();

}  // namespace vk
