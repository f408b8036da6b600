// SPDX-License-Identifier: MIT
// The records of the circle monitors and their row among the kinds. Fields have the names of their
// configuration keys.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "monitors/mdlMonitorRow.h"

namespace vk {

inline constexpr std::size_t kCircleMonitors = 8;

struct CircleMonitorRec {
  bool CRL_ONOFF = false;
  std::string CRL_CAPTION;
  int32_t CRL_SER = kNoSerial;
  int32_t CRL_CH = 1;
  float CRL_FULL = 1000.0F;  ///< value at the end of the dial
  int32_t CRL_OFFSET = 0;    ///< value at its start
  float CRL_SPEED = 0;
  Colour CRL_FORE = kRed;
  Colour CRL_BACK = kDarkGrey;
  Colour CRL_C_FORE = kRed;
  Colour CRL_C_BACK = kAbnormalGrey;
  Colour CRL_GND = kGroundGrey;
  Colour CRL_GRID = kGridGrey;
  bool CRL_CVAL_ONOFF = false;
  float CRL_CVAL_UP = kUpperLimit;
  float CRL_CVAL_DOWN = kLowerLimit;
  int32_t CRL_TOP = 0;
  int32_t CRL_LEFT = 0;
  int32_t CRL_HEIGHT = 2600;
  int32_t CRL_WIDTH = 4200;
  bool operator==(const CircleMonitorRec&) const = default;
};

extern std::array<CircleMonitorRec, kCircleMonitors> gCircleMoni;
extern const MonitorRow kCircleRow;

}  // namespace vk
