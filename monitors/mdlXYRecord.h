// SPDX-License-Identifier: MIT
// The records of the X-Y monitors and their row among the kinds. Fields have the names of their
// configuration keys.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "monitors/mdlMonitorRow.h"

namespace vk {

inline constexpr std::size_t kXYMonitors = 4;
/// Y first.
inline constexpr std::size_t kXYAxes = 2;

/// The second element of a pair is the X axis; its keys have "SUB" in their names.
struct XYMonitorRec {
  bool XY_ONOFF = false;
  std::string XY_CAPTION;
  std::array<int32_t, kXYAxes> XY_SER = filled<int32_t, kXYAxes>(kNoSerial);
  std::array<int32_t, kXYAxes> XY_CH = filled<int32_t, kXYAxes>(1);
  std::array<float, kXYAxes> XY_FULL = filled<float, kXYAxes>(1000.0F);
  std::array<int32_t, kXYAxes> XY_OFFSET{};
  float XY_SPEED = 0;
  Colour XY_FORE = kRed;
  Colour XY_BACK = kDarkGrey;
  Colour XY_POINT = kYellow;
  Colour XY_C_FORE = kRed;
  Colour XY_C_BACK = kAbnormalGrey;
  Colour XY_C_POINT = kYellow;
  Colour XY_GND = kGroundGrey;
  Colour XY_GRID = kGridGrey;
  bool XY_CVAL_ONOFF = false;
  std::array<float, kXYAxes> XY_CVAL_UP = filled<float, kXYAxes>(kUpperLimit);
  std::array<float, kXYAxes> XY_CVALDOWN = filled<float, kXYAxes>(kLowerLimit);
  int32_t XY_TOP = 0;
  int32_t XY_LEFT = 0;
  int32_t XY_HEIGHT = 3300;
  int32_t XY_WIDTH = 5300;
  bool operator==(const XYMonitorRec&) const = default;
};

extern std::array<XYMonitorRec, kXYMonitors> gXYMoni;
extern const MonitorRow kXYRow;

}  // namespace vk
