// SPDX-License-Identifier: MIT
// The records of the numerical monitors and their row among the kinds. Fields have the names of
// their configuration keys.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "monitors/mdlMonitorRow.h"

namespace vk {

inline constexpr std::size_t kNumMonitors = 32;

struct NumMonitorRec {
  bool NUM_ONOFF = false;
  std::string NUM_CAPTION;
  int32_t NUM_SER = kNoSerial;
  int32_t NUM_CH = 1;
  Colour NUM_FORE = kWhite;
  Colour NUM_BACK = kDarkGrey;
  Colour NUM_C_FORE = kWhite;
  Colour NUM_C_BACK = kAbnormalGrey;
  bool NUM_CVAL_ONOFF = false;
  float NUM_CVAL_UP = kUpperLimit;
  float NUM_CVAL_DOWN = kLowerLimit;
  int32_t NUM_TOP = 0;
  int32_t NUM_LEFT = 0;
  int32_t NUM_HEIGHT = 2500;
  int32_t NUM_WIDTH = 6000;
  float NUM_SPEED = 0;    ///< samples per shown value, less one
  int32_t NUM_POINT = 0;  ///< index into the decimal formats
  bool operator==(const NumMonitorRec&) const = default;
};

extern std::array<NumMonitorRec, kNumMonitors> gNumMoni;
extern const MonitorRow kNumRow;

}  // namespace vk
