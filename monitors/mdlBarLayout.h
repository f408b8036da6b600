// SPDX-License-Identifier: MIT
// Where everything in the window of a bar monitor goes, for its size and font. Pixels.
#pragma once

#include <array>

#include "monitors/mdlBarRecord.h"
#include "monitors/mdlMonitorPlace.h"

namespace vk {

/// Where everything in the window goes. A place without a size is for a control that finds no room.
struct BarLayout {
  MonitorPlace picWave;
  MonitorPlace sdrYPos;
  MonitorPlace fraSet;
  std::array<MonitorPlace, kBars> picCh;
  bool buttonsBeside = false;  ///< the buttons of the frame stand in a row, not in a column
};

/// What the controls need, which depends on font and style.
struct BarRoom {
  int sliderWidth = 1;
  int buttonWidth = 1;
  int buttonHeight = 1;
  int panelRow = 4;  ///< width of the four panels side by side
};

BarLayout barLayout(int width, int height, const BarRoom& room);

}  // namespace vk
