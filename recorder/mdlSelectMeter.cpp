// SPDX-License-Identifier: MIT
#include "recorder/mdlSelectMeter.h"

#include "base/mdlBox.h"
#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

int32_t gSelMode = kSelectBox;
int32_t gSelSerial = kSelectCancelled;
int32_t gSelChannel = 0;

namespace {

constexpr std::string_view kAllMeters = "All Meters";

int32_t serialOfText(std::string_view text) {
  if (text == kAllMeters) return kSelectAllMeters;
  return readWhole(text).value_or(kNoSerial);
}

/// 1, 2 or 4.
bool channelMissing(int32_t serial, int32_t channel) {
  const int32_t row = slotIndexOf(serial);
  return row > 0 && channel > channelCount(gBoxTable[row].channelMode);
}

}  // namespace

bool boxSelected() {
  return gSelSerial != kSelectCancelled && gSelSerial != kSelectAllMeters &&
         gSelSerial != kNoSerial;
}

std::vector<std::string> selectMeterTexts(int32_t mode) {
  std::vector<std::string> texts;
  if (mode == kSelectBoxAndChannel) texts.emplace_back(kAllMeters);
  for (int row = 1; row <= kBoxes; ++row) {
    if (mode == kSelectConnected && !isConnected(gBoxTable[row])) continue;
    texts.push_back(serialOrDisconnect(gBoxTable[row]));
  }
  return texts;
}

std::vector<std::string> selectChannelTexts(int32_t mode) {
  if (mode != kSelectBoxAndChannel) return {};
  return {"All Channels", "Channel 1", "Channel 2", "Channel 3", "Channel 4"};
}

std::string selectButtonText(int32_t mode, bool check) {
  if (mode == kSelectBoxAndChannel) return "Balance";
  return check ? "Check" : "Select";
}

bool selectReady(int32_t mode, std::string_view meterText, int32_t channelIndex) {
  if (meterText.empty()) return false;
  return mode != kSelectBoxAndChannel || (channelIndex >= 0 && channelIndex <= kChannels);
}

bool acceptSelection(std::string_view meterText, int32_t channelIndex) {
  const int32_t serial = serialOfText(meterText);
  const int32_t channel = gSelMode == kSelectBoxAndChannel ? channelIndex : 0;
  if (channelMissing(serial, channel)) {
    showBox("Error", "This channel can not be used.Change the setting of the number of channels.");
    return false;
  }
  gSelSerial = serial;
  gSelChannel = channel;
  return true;
}

void cancelSelection() {
  gSelSerial = kSelectCancelled;
}

}  // namespace vk
