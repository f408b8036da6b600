// SPDX-License-Identifier: MIT
#include "shell/mdlStart.h"

#include <algorithm>
#include <tuple>

#include "base/clsDesktop.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "shell/mdlConfig.h"

namespace vk {

int32_t gStartOK = 0;

namespace {

/// What the status reply read last says.
std::string replyClock() {
  return "20" + staDate() + "  " + staTime();
}

/// List rows and box-table rows go by position; both have at most eight.
std::size_t usedRows(const std::vector<StartRow>& rows) {
  return std::min<std::size_t>(rows.size(), kBoxes);
}

bool refreshClock(StartRow& row, int32_t handle) {
  if (usbSTA(handle) != kUsbOk) return false;
  row.clock = replyClock();
  return true;
}

}  // namespace

bool activateStart(const LogBox& log, std::vector<StartRow>& rows) {
  rows.clear();
  gStartMode = connectBoxes(true, log);
  if (gStartMode == kStartTooMany) gStartOK = 0;
  if (gStartMode != kStartNormal) return false;
  for (int row = 1; row <= kBoxes; ++row) {
    if (!isConnected(gBoxTable[row])) continue;
    rows.push_back({serialText(gBoxTable[row].serial), "", false});
  }
  return true;
}

bool tickStartClocks(std::vector<StartRow>& rows) {
  if (gUSBBusy) return false;
  bool changed = false;
  for (std::size_t i = 0; i < usedRows(rows) && !desktop().ending(); ++i) {
    changed |= refreshClock(rows[i], gBoxTable[i + 1].handle);
  }
  return changed;
}

void setStartClocks(std::vector<StartRow>& rows) {
  for (std::size_t i = 0; i < usedRows(rows) && !desktop().ending(); ++i) {
    if (!rows[i].ticked) continue;
    // A refusal was shown by the command; the clock is read all the same, and shows what holds.
    std::ignore = usbRTM(gBoxTable[i + 1].serial, rtmText(desktop().now()));
    std::ignore = refreshClock(rows[i], gBoxTable[i + 1].handle);
  }
}

}  // namespace vk
