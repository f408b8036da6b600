// SPDX-License-Identifier: MIT
// The records of the bar monitors and their row among the kinds. Fields have the names of their
// configuration keys.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "monitors/mdlMonitorRow.h"

namespace vk {

inline constexpr std::size_t kBarMonitors = 4;
inline constexpr std::size_t kBars = 4;

/// The arrays have one element for each bar; their keys have 1ST to 4TH in their names.
struct BarMonitorRec {
  bool BAR_ONOFF = false;
  std::string BAR_CAPTION;
  float BAR_SPEED = 0;
  int32_t BAR_TOP = 0;
  int32_t BAR_LEFT = 0;
  int32_t BAR_HEIGHT = 3500;
  int32_t BAR_WIDTH = 6800;
  Colour BAR_GND = kGroundGrey;
  Colour BAR_GRID = kGridGrey;
  Colour BAR_BACK = kDarkGrey;
  Colour BAR_C_BACK = kAbnormalGrey;
  std::array<int32_t, kBars> BAR_SER = filled<int32_t, kBars>(kNoSerial);
  std::array<int32_t, kBars> BAR_CH = filled<int32_t, kBars>(1);
  std::array<float, kBars> BAR_FULL = filled<float, kBars>(1000.0F);
  std::array<int32_t, kBars> BAR_OFFSET{};
  std::array<bool, kBars> BAR_CVAL_ONOFF{};
  std::array<Colour, kBars> BAR_FORE = filled<Colour, kBars>(kRed);
  std::array<Colour, kBars> BAR_CFORE = filled<Colour, kBars>(kRed);
  std::array<float, kBars> BAR_CVAL_UP = filled<float, kBars>(kUpperLimit);
  std::array<float, kBars> BAR_CVAL_DOWN = filled<float, kBars>(kLowerLimit);
  bool operator==(const BarMonitorRec&) const = default;
};

extern std::array<BarMonitorRec, kBarMonitors> gBarMoni;
extern const MonitorRow kBarRow;

}  // namespace vk
