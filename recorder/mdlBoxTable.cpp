// SPDX-License-Identifier: MIT
#include "recorder/mdlBoxTable.h"

#include "base/mdlText.h"

namespace vk {

OneBased<MeasureSetting, kFileRow> gBoxTable;
OneBased<BoxShadow, kFileRow> gBoxShadow;

namespace {

uint32_t gAge = 0;

/// The first of rows 1 to 8 that has the serial, 0 without one.
std::size_t firstRowOf(int32_t serial) {
  for (std::size_t row = 1; row <= kBoxes; ++row) {
    if (gBoxTable[row].serial == serial) return row;
  }
  return 0;
}

bool differs(const MeasureSetting& box, const BoxShadow& shadow) {
  return box.handle != shadow.handle || !equalNoCase(box.fileCountText, shadow.fileCountText) ||
         box.syncMode != shadow.syncMode || box.boxState != shadow.boxState ||
         box.model != shadow.model;
}

}  // namespace

void resetBoxTable() {
  ++gAge;
  gBoxTable.fill(MeasureSetting{});
  gBoxShadow.fill(BoxShadow{});
}

uint32_t boxTableAge() {
  return gAge;
}

std::string serialText(int32_t serial) {
  return formatNumber(serial, "0000000");
}

std::string serialOrDisconnect(const MeasureSetting& row) {
  return isConnected(row) ? serialText(row.serial) : std::string(kDisconnect);
}

int32_t slotOf(int32_t serial) {
  const std::size_t row = firstRowOf(serial);
  return row == 0 ? 1 : gBoxTable[row].handle;
}

int32_t slotIndexOf(int32_t serial) {
  const std::size_t row = serial == kNoSerial ? 0 : firstRowOf(serial);
  return row == 0 ? -1 : static_cast<int32_t>(row);
}

int32_t familyOf(int32_t serial) {
  const int32_t row = slotIndexOf(serial);
  return row < 0 ? 0 : gBoxTable[row].model;
}

std::array<bool, kBoxes + 1> takeChangedRows() {
  std::array<bool, kBoxes + 1> changed{};
  for (std::size_t row = 1; row <= kBoxes; ++row) {
    const MeasureSetting& box = gBoxTable[row];
    changed[row] = differs(box, gBoxShadow[row]);
    if (!changed[row]) continue;
    gBoxShadow[row] = {box.identity(), box.status()};
  }
  return changed;
}

}  // namespace vk
