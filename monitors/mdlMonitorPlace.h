// SPDX-License-Identifier: MIT
// Places in a form or in the area of the child windows, in pixels.
#pragma once

#include <span>

namespace vk {

/// Where something goes. A place without a size is for what finds no room.
struct MonitorPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const MonitorPlace&) const = default;
};

/// Where a window opens that was never placed, which its record tells by the corner of the area. It
/// takes that corner unless the title of another window lies there; then the place, in the area and
/// with a title of its own, where it covers the others least, and of such the topmost and leftmost.
MonitorPlace openingPlace(const MonitorPlace& stored, std::span<const MonitorPlace> others,
                          int areaWidth, int areaHeight);

}  // namespace vk
