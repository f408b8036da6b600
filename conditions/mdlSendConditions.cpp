// SPDX-License-Identifier: MIT
#include "conditions/mdlSendConditions.h"

#include <cstddef>

#include "link/mdlUSBCommand.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

bool sendConditions(const ConditionsToSend& send, const JobView& view) {
  const auto proceed = [&view](double fraction) {
    view.tellProgress(fraction);
    return view.yield();
  };
  if (usbSET(send.serial, send.texts.setting) != kUsbOk || !proceed(0.25)) return false;
  if (usbUNT(send.serial, send.texts.unit) != kUsbOk || !proceed(0.5)) return false;
  if (usbCEF(send.serial, send.texts.coeff) != kUsbOk || !proceed(0.75)) return false;
  const int count = channelCount(send.channelMode);
  for (int channel = 1; channel <= count; ++channel) {
    const int16_t balance = send.balance[channel];
    if (usbDMC(send.serial, channel, balance) != kUsbOk) return false;
  }
  return proceed(1.0);
}

std::optional<PerChannel<int32_t>> fetchBalance(MeasureSetting& row) {
  if (usbSTA(row.handle) != kUsbOk) return std::nullopt;
  PerChannel<int32_t> positions;
  for (int i = 1; i <= kChannels; ++i) {
    const auto channel = static_cast<std::size_t>(i);
    positions[channel] = findIndex(onOffCode, staBalance(i));
    if (positions[channel] >= 0) row.balance[channel] = static_cast<int16_t>(positions[channel]);
  }
  return positions;
}

}  // namespace vk
