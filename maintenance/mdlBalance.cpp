// SPDX-License-Identifier: MIT
#include "maintenance/mdlBalance.h"

#include <tuple>

#include "base/mdlBox.h"
#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlSelectMeter.h"

namespace vk {

namespace {

constexpr int32_t kBalanceOff = 20;  // what a channel set to balance off answers
constexpr double kAfterInit = 1.0;   // seconds

void addChannels(std::vector<BalanceStep>& steps, const MeasureSetting& box, int32_t channel) {
  if (channel > 0) {
    steps.push_back({box.serial, channel});
    return;
  }
  for (int32_t i = 1; i <= channelCount(box.channelMode); ++i) steps.push_back({box.serial, i});
}

/// True when the job is to go on.
bool balance(const BalanceStep& step) {
  const int32_t result = usbBAL(step.serial, step.channel);
  if (result == kUsbOk || result == kBalanceOff) return true;
  return unlessNo("Balance Error", "Balance Error has occurred.continue?", BoxIcon::kExclamation);
}

}  // namespace

std::vector<BalanceStep> balanceSteps(int32_t serial, int32_t channel) {
  std::vector<BalanceStep> steps;
  for (std::size_t row = 1; row <= kBoxes; ++row) {
    const auto& box = gBoxTable[row];
    if (box.serial == kNoSerial) continue;
    if (serial == kSelectAllMeters || box.serial == serial) addChannels(steps, box, channel);
  }
  return steps;
}

std::size_t runBalance(const std::vector<BalanceStep>& steps, const JobView& view) {
  std::size_t done = 0;
  for (const auto& step : steps) {
    view.tell("Serial Number " + serialText(step.serial) + "  Channel" + textOf(step.channel),
              "  Balancing");
    if (!view.yield() || !balance(step)) break;
    view.tellProgress(static_cast<double>(++done) / steps.size());
  }
  return done;
}

bool askCardInit(int32_t serial) {
  const std::string text =
      "Serial Number " + serialText(serial) + " CF card is" + " initialized." + "\r\n" + "OK?";
  return confirmBox("Initializing CF card", text, BoxIcon::kQuestion);
}

int32_t runCardInit(int32_t serial, const JobView& view) {
  view.tell("CF card being initialized");
  std::ignore = view.yield();  // the user has said OK; there is nothing to stop any more
  const int32_t result = usbFMT(serial);
  waitSeconds(kAfterInit);
  return result;
}

}  // namespace vk
