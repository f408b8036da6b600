// SPDX-License-Identifier: MIT
// Where everything in the window of a circle monitor goes, for its size and font. Pixels.
#pragma once

#include "monitors/mdlMonitorPlace.h"

namespace vk {

/// Where everything lies for a form of the given size. `line` is the height of a line of text in
/// the small font of the form. A size of 0 means that there is no room.
struct CircleLayout {
  MonitorPlace picture;
  MonitorPlace frame;
  bool frameInRow = false;  ///< the buttons side by side instead of one below the other
  MonitorPlace value;
  MonitorPlace unit;
  MonitorPlace serial;
  MonitorPlace channel;
  MonitorPlace yScale;
  MonitorPlace offset;
  MonitorPlace oneThird;
  MonitorPlace twoThirds;
  MonitorPlace full;
};
CircleLayout circleLayout(int width, int height, int line);

}  // namespace vk
