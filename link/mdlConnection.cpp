// SPDX-License-Identifier: MIT
#include "link/mdlConnection.h"

#include <fmt/format.h>

#include <optional>
#include <tuple>

#include "base/mdlBox.h"
#include "link/mdlBoxSetting.h"
#include "link/mdlUSBCommand.h"
#include "link/vk240q_lib.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

std::function<void()> gRestoreDefaults;

namespace {

/// What a row of the scan ended with; empty goes on to the next.
using ScanEnd = std::optional<int32_t>;

void addLine(const LogBox& logBox, const std::string& line) {
  if (logBox) logBox(line + "\r\n");
}

void logSerial(const LogBox& logBox, int32_t serial, const std::string& text) {
  addLine(logBox, "Serial Number : " + serialText(serial) + text);
}

int32_t refuseUpgradeBox() {
  showBox("Connection error",
          "VK-480Q in upgrade mode is connected. Stop the upgrade mode and reconnect.",
          BoxIcon::kNone);
  closeLibrary();
  if (gRestoreDefaults) gRestoreDefaults();
  return kStartNormal;
}

int32_t endInUpgradeMode(int32_t devices, const LogBox& logBox) {
  addLine(logBox, "[Caution !!]");
  if (devices == 1) {
    addLine(logBox, "VK-480Q is in upgrade mode of the program.");
    addLine(logBox, "Don't upgrade when you connect several VK-480Q.");
    return kStartUpgrade;
  }
  addLine(logBox, "Several VK-480Qs in upgrade mode of program are connected.");
  addLine(logBox, "Cannot be upgraded with several units in use.");
  return kStartSeveralUpgrade;
}

/// Takes the state of the last status reply; one that is none leaves the row's. True when it is.
bool takeState(MeasureSetting& row) {
  const int16_t state = staBoxState();
  if (state != 0) row.boxState = state;
  return state != 0;
}

/// Takes over the last status reply. True when its state is one of an instrument at work.
bool takeStatus(MeasureSetting& row) {
  row.serial = staSerial();
  row.syncMode = staSyncMode();
  for (int channel = 1; channel <= kChannels; ++channel) {
    row.balance[channel] = staChFlag(channel);
  }
  return takeState(row);
}

void readContents(int32_t serial, bool goodState, const LogBox& logBox) {
  const int32_t bad = readMeasureSetting(serial) + (goodState ? 0 : 1);
  if (bad == 0) {
    logSerial(logBox, serial, " The set contents are normal.");
    return;
  }
  logSerial(logBox, serial, " The set contents are not normal.");
  addLine(logBox, " The set contents are made default.");
  writeDefaultSetting(serial);
  // What the box answers now is taken as it is; there is no second repair.
  std::ignore = readMeasureSetting(serial);
}

void logCard(int32_t result, const LogBox& logBox) {
  if (result == kUsbOk) {
    addLine(logBox, " CF card has been recognized.");
  } else if (result == kUsbNoCard) {
    addLine(logBox, " CF card is not inserted.");
  } else {
    addLine(logBox, " Unexpected error has occurred in CF card.");
  }
}

ScanEnd scanBox(int32_t device, int32_t devices, bool allowUpgrade, const LogBox& logBox) {
  const int32_t model = usbProbeModel(device);
  if (model < 0) {
    addLine(logBox, "VK-480Q is not connected.");
    return kStartNormal;
  }
  auto& row = gBoxTable[device];
  row.handle = device;
  row.model = static_cast<int16_t>(model);
  if (usbProbeUpgrade(row.handle) < 0) {
    return allowUpgrade ? endInUpgradeMode(devices, logBox) : refuseUpgradeBox();
  }
  // A status that does not come is sliced like any other: the result is not looked at.
  std::ignore = usbSTA(row.handle);
  const bool goodState = takeStatus(row);
  addLine(logBox, std::string(modelRow(model).banner));
  logSerial(logBox, row.serial, " Connection has been confirmed.");
  readContents(row.serial, goodState, logBox);
  const int32_t card = usbFLN(row.serial);
  if (card < 0) return kStartNormal;
  row.fileCountText = fileCountTextOf(card);
  logCard(card, logBox);
  return std::nullopt;
}

int countUpgradeBoxes(int32_t devices) {
  int count = 0;
  for (int32_t device = 1; device <= devices; ++device) {
    if (usbProbeUpgrade(device) < 0) ++count;
  }
  return count;
}

/// Asks one row for its state and card; false when it does not answer.
bool pollRow(MeasureSetting& row) {
  if (usbSTA(slotOf(row.serial)) < 0) return false;
  row.syncMode = staSyncMode();
  takeState(row);
  const int32_t card = usbFLN(row.serial);
  if (card < 0) return false;
  row.fileCountText = fileCountTextOf(card);
  return true;
}

}  // namespace

void closeLibrary() {
  if (Vk240qStatus() == 1) Vk240qClose();
}

int32_t connectBoxes(bool allowUpgrade, const LogBox& logBox) {
  closeLibrary();
  const int32_t devices = Vk240qCountDevices();
  if (devices < 1) {
    addLine(logBox, "VK-480Q is not connected.");
    return kStartNormal;
  }
  if (devices > kBoxes) {
    addLine(logBox, "Maximum number of connection is 8.");
    addLine(logBox, "Confirm the connection.");
    return kStartTooMany;
  }
  if (countUpgradeBoxes(devices) > 0) {
    return allowUpgrade ? endInUpgradeMode(devices, logBox) : refuseUpgradeBox();
  }
  for (int32_t device = 1; device <= devices; ++device) {
    if (const ScanEnd end = scanBox(device, devices, allowUpgrade, logBox)) return *end;
  }
  addLine(logBox, fmt::format("Connected = {}Unit", devices));
  return kStartNormal;
}

bool pollStatus() {
  if (gUSBBusy != 0) return false;
  for (std::size_t i = 1; i <= kBoxes; ++i) {
    auto& row = gBoxTable[i];
    if (!isConnected(row)) continue;
    if (!pollRow(row)) {
      row.handle = kNoHandle;
      return false;
    }
  }
  return true;
}

void readBackState(int row) {
  auto& box = gBoxTable[row];
  if (usbSTA(slotOf(box.serial)) >= 0) takeState(box);
}

}  // namespace vk
