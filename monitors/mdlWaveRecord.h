// SPDX-License-Identifier: MIT
// The records of the wave monitors and their row among the kinds. Fields have the names of their
// configuration keys.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "monitors/mdlMonitorRow.h"

namespace vk {

inline constexpr std::size_t kWaveMonitors = 8;

struct WaveMonitorRec {
  bool WAV_ONOFF = false;
  std::string WAV_CAPTION;
  int32_t WAV_SER = kNoSerial;
  int32_t WAV_CH = 1;
  float WAV_FULL = 1000.0F;  ///< units per division
  int32_t WAV_OFFSET = 0;    ///< -10 to 10, half divisions
  float WAV_SPEED = 0;       ///< index of the X scale
  bool WAV_CUP_ON = false;
  float WAV_CUP_VALUE = 0;
  Colour WAV_FORE = kRed;
  Colour WAV_BACK = kDarkGrey;
  Colour WAV_C_FORE = kRed;
  Colour WAV_C_BACK = kAbnormalGrey;
  Colour WAV_GND = kGroundGrey;
  Colour WAV_GRID = kGridGrey;
  bool WAV_CVAL_ONOFF = false;
  float WAV_CVAL_UP = kUpperLimit;
  float WAV_CVALDOWN = kLowerLimit;
  int32_t WAV_TOP = 0;
  int32_t WAV_LEFT = 0;
  int32_t WAV_HEIGHT = 2500;
  int32_t WAV_WIDTH = 6800;
  bool operator==(const WaveMonitorRec&) const = default;
};

extern std::array<WaveMonitorRec, kWaveMonitors> gWaveMoni;
extern const MonitorRow kWaveRow;

}  // namespace vk
