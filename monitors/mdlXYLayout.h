// SPDX-License-Identifier: MIT
// Where everything in the window of an X-Y monitor goes, for its size and font. Pixels.
#pragma once

#include <array>

#include "monitors/mdlMonitorPlace.h"
#include "monitors/mdlXYRecord.h"

namespace vk {

struct XYMetrics {
  int serial;   ///< width of a serial label
  int channel;  ///< width of a channel label
  int line;     ///< height of a label
  int button;   ///< height of a button
};

/// The labels of an axis, one below the other; rows without room are left out.
struct XYBlock {
  int serial = -1;   ///< top of the row, -1 without one
  int channel = -1;  ///< the same as that of the serial where both go into one row
  int value = -1;
  int unit = -1;  ///< beside the value, or at the right of the channel where that leaves no room
  int scale = -1;
  int offset = -1;
};

struct XYLayout {
  MonitorPlace wave;  ///< square
  std::array<MonitorPlace, kXYAxes> slider;
  int column;  ///< left edge of the labels
  int columnWidth;
  int valueHeight;  ///< of the row with the value, which grows with the window
  std::array<XYBlock, kXYAxes> block;
  MonitorPlace frame;
};
XYLayout xyLayout(int width, int height, const XYMetrics& metrics);

}  // namespace vk
