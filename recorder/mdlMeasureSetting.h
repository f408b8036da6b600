// SPDX-License-Identifier: MIT
// The record of one recorder and its measurement conditions. It stores indices into the code
// tables, never display texts, so that one set of rules serves instrument, dialog and file.
#pragma once

#include <cstdint>
#include <string>

#include "base/mdlOneBased.h"

namespace vk {

inline constexpr int32_t kNoSerial = 9999999;  ///< the serial that stands for no box
inline constexpr int32_t kNoHandle = -1;       ///< empty row, or lost by the status poll
inline constexpr int32_t kLostHandle = -1001;  ///< lost by the monitor cycle
inline constexpr int kChannels = 4;
inline constexpr int kBoxes = 8;    ///< rows 1 to 8 are boxes
inline constexpr int kFileRow = 9;  ///< serves a loaded setting file, and no box

/// Index into modelName. 0 and 1 form the VK-240Q family, 2 and 3 the VK-480Q family.
enum Model : int16_t { kVk240Q = 0, kVk240Qe = 1, kVk480Q = 2, kVk480Qe = 3 };
inline constexpr bool isLowFamily(int model) {
  return model == kVk240Q || model == kVk240Qe;
}
/// The variants with an analog output.
inline constexpr bool hasAnalogOutput(int model) {
  return model == kVk240Qe || model == kVk480Qe;
}

template <typename T>
using PerChannel = OneBased<T, kChannels>;

/// A new record holds the defaults.
struct MeasureSetting {
  int32_t handle = kNoHandle;  ///< library device number 1 to 8
  int32_t serial = kNoSerial;
  int16_t channelMode = 2;
  PerChannel<int16_t> range;
  PerChannel<int16_t> filter;
  int16_t sampling = 2;
  int16_t preArea = 0;
  int16_t dataSize = 7;
  int16_t triggerMode = 1;
  PerChannel<float> triggerLevel;  ///< percent, -100.0 to +100.0
  PerChannel<int16_t> triggerSlope;
  PerChannel<int16_t> unit;
  PerChannel<float> coeff;
  std::string fileCountText = "000/000";
  int16_t syncMode = 1;         ///< 0 master, 1 slave
  PerChannel<int16_t> balance;  ///< 0 on, 1 off; also the channel digits of the status reply
  PerChannel<int16_t> carrier;
  int16_t boxState = 1;  ///< state number of the status reply, 1 to 98
  int16_t model = kVk480Q;

  MeasureSetting() {
    range.fill(4);
    filter.fill(6);
    triggerLevel.fill(10.0F);
    triggerSlope.fill(2);
    triggerSlope[1] = 0;
    coeff.fill(1.0F);
    carrier.fill(2);
  }
  bool operator==(const MeasureSetting&) const = default;
};

/// A record with every number 0 and the text empty, to decode a text into.
inline MeasureSetting zeroedSetting() {
  MeasureSetting record;
  record.handle = 0;
  record.serial = 0;
  record.fileCountText.clear();
  for (auto* field : {&record.channelMode, &record.sampling, &record.preArea, &record.dataSize,
                      &record.triggerMode, &record.syncMode, &record.boxState, &record.model}) {
    *field = 0;
  }
  for (auto* field : {&record.range, &record.filter, &record.triggerSlope, &record.unit,
                      &record.balance, &record.carrier}) {
    field->fill(0);
  }
  record.triggerLevel.fill(0.0F);
  record.coeff.fill(0.0F);
  return record;
}

}  // namespace vk
