// SPDX-License-Identifier: MIT
// Where everything in the window of a numerical monitor goes, for its size and font. Pixels.
#pragma once

#include "monitors/mdlMonitorPlace.h"

namespace vk {

/// Pixels that the column left of the number needs.
struct NumColumn {
  int width;   ///< of the wider one of the serial label and the buttons
  int line;    ///< height of a label
  int button;  ///< height of a button
};

struct NumLayout {
  MonitorPlace serial;
  MonitorPlace channel;
  MonitorPlace frame;
  MonitorPlace monitor;
  MonitorPlace unit;
  MonitorPlace max;
  MonitorPlace min;
  bool buttonsBeside;  ///< the buttons of the frame stand in a row, not in a column
};
NumLayout numLayout(int width, int height, const NumColumn& column);

}  // namespace vk
