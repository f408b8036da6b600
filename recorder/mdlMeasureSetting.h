// SPDX-License-Identifier: MIT
// The record of one recorder, made of three values that copy whole: which box it is, its
// measurement conditions, and its state as last heard. Conditions are indices into the code
// tables, never display texts, so that one set of rules serves instrument, dialog and file.
#pragma once

#include <cstdint>
#include <string>

#include "base/mdlOneBased.h"
#include "recorder/mdlModel.h"

namespace vk {

inline constexpr int32_t kNoSerial = 9999999;  ///< the serial that stands for no box
inline constexpr int32_t kNoHandle = -1;       ///< empty row, or lost by the status poll
inline constexpr int32_t kLostHandle = -1001;  ///< lost by the monitor cycle
inline constexpr int kChannels = 4;
inline constexpr int kBoxes = 8;    ///< rows 1 to 8 are boxes
inline constexpr int kFileRow = 9;  ///< serves a loaded setting file, and no box

template <typename T>
using PerChannel = OneBased<T, kChannels>;

struct BoxIdentity {
  int32_t handle = kNoHandle;  ///< library device number 1 to 8
  int32_t serial = kNoSerial;
  int16_t model = kVk480Q;
  bool operator==(const BoxIdentity&) const = default;
};

/// What the settings string carries.
struct SettingConditions {
  int16_t channelMode = 0;
  PerChannel<int16_t> range;
  PerChannel<int16_t> filter;
  PerChannel<int16_t> carrier;
  int16_t sampling = 0;
  int16_t preArea = 0;
  int16_t dataSize = 0;
  int16_t triggerMode = 0;
  PerChannel<float> triggerLevel;  ///< percent, -100.0 to +100.0
  PerChannel<int16_t> triggerSlope;
  bool operator==(const SettingConditions&) const = default;
};

/// With what has texts of its own. All zero, to decode a text into.
struct MeasureConditions : SettingConditions {
  PerChannel<int16_t> unit;
  PerChannel<float> coeff;
  PerChannel<int16_t> balance;  ///< 0 on, 1 off; also the channel digits of the status reply
  bool operator==(const MeasureConditions&) const = default;
};

inline MeasureConditions defaultConditions() {
  MeasureConditions conditions;
  conditions.channelMode = 2;
  conditions.range.fill(4);
  conditions.filter.fill(6);
  conditions.carrier.fill(kCarrier20);
  conditions.sampling = 2;
  conditions.dataSize = 7;
  conditions.triggerMode = 1;
  conditions.triggerLevel.fill(10.0F);
  conditions.triggerSlope.fill(kSlopeOff);
  conditions.triggerSlope[1] = 0;
  conditions.coeff.fill(1.0F);
  return conditions;
}

struct BoxStatus {
  std::string fileCountText = "000/000";
  int16_t syncMode = 1;  ///< 0 master, 1 slave
  int16_t boxState = 1;  ///< state number of the status reply, 1 to 98
  bool operator==(const BoxStatus&) const = default;
};

/// A new record holds the defaults. Its parts are bases, so that a field is named without the part
/// it belongs to and a part is copied as a whole.
struct MeasureSetting : BoxIdentity, MeasureConditions, BoxStatus {
  MeasureSetting() : MeasureConditions(defaultConditions()) {}

  BoxIdentity& identity() { return *this; }
  const BoxIdentity& identity() const { return *this; }
  SettingConditions& settingConditions() { return *this; }
  const SettingConditions& settingConditions() const { return *this; }
  MeasureConditions& conditions() { return *this; }
  const MeasureConditions& conditions() const { return *this; }
  BoxStatus& status() { return *this; }
  const BoxStatus& status() const { return *this; }
  bool operator==(const MeasureSetting&) const = default;
};

/// A record with every number 0 and the text empty, to decode a text into.
inline MeasureSetting zeroedSetting() {
  MeasureSetting record;
  record.identity() = {0, 0, 0};
  record.conditions() = {};
  record.status() = {"", 0, 0};
  return record;
}

}  // namespace vk
