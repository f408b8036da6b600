// SPDX-License-Identifier: MIT
#include "monitors/mdlCircleLayout.h"

#include <algorithm>

namespace vk {

namespace {

constexpr int kBelow = 16;      ///< below the dial, for the scale's start
constexpr int kBeside = 96;     ///< right of the dial, at least
constexpr int kScaleRoom = 70;  ///< ten characters, or the buttons, left of the dial
constexpr int kGap = 2;

int atLeastOne(int size) {
  return std::max(1, size);
}

MonitorPlace placeDial(int width, int height, int x, int y) {
  const int side = atLeastOne(std::min(height - y - kBelow, width - x - kBeside));
  return {x, y, side, side};
}

/// The value as tall as the room and the dial allow, the unit half as tall below it.
void placeValue(CircleLayout& layout, MonitorPlace room, int line) {
  constexpr int kWidthOfHeight = 4;
  const int byHeight = std::min(room.height - line, room.height * 2 / 3);
  const int height = atLeastOne(std::min(byHeight, room.width / kWidthOfHeight));
  const int unit = std::max(line, height / 2);
  const int above = std::clamp((room.height - height - unit) / 3, 0, height);
  layout.value = {room.left, room.top + above, room.width, height};
  layout.unit = {room.left, room.top + above + height, room.width, unit};
}

void placeDetails(CircleLayout& layout, int x, int y, int width, int line) {
  layout.serial = {x, y, width, line};
  layout.channel = {x, y + line, width, line};
  layout.yScale = {x, y + 2 * line, width, line};
}

/// A dial too small for a scale: dial and value, the buttons in a row below the value.
CircleLayout smallLayout(int width, int height, int line) {
  constexpr int kButtonPadding = 8;
  CircleLayout layout;
  layout.picture = placeDial(width, height, kGap, kGap);
  const int x = layout.picture.left + layout.picture.width;
  const int room = atLeastOne(width - x - kGap);
  const int row = line + kButtonPadding;
  layout.frameInRow = true;
  layout.frame = {x + kGap, height - row - 1, atLeastOne(room - kGap), row};
  int top = 0;
  const int details = 3 * line;
  if (height - row - details >= 3 * line) {
    placeDetails(layout, x, 0, room, line);
    top = details;
  }
  placeValue(layout, {x, top, room, height - row - kGap - top}, line);
  return layout;
}

}  // namespace

CircleLayout circleLayout(int width, int height, int line) {
  constexpr int kSmallestInLines = 6;
  CircleLayout layout;
  layout.picture = placeDial(width, height, kScaleRoom, line + kGap);
  const auto& dial = layout.picture;
  if (dial.width < kSmallestInLines * line) return smallLayout(width, height, line);
  const int right = dial.left + dial.width;
  const int middle = dial.top + dial.height / 2;
  const int room = atLeastOne(width - right - kGap);
  layout.frame = {kGap, kGap, kScaleRoom - 5 * kGap, 3 * line + kGap};
  placeDetails(layout, right, 0, room, line);
  layout.full = {right, middle - line / 2, room, line};
  const int below = layout.full.top + line;
  placeValue(layout, {right, below, room, height - below - kGap}, line);
  layout.oneThird = {0, middle - line / 2, kScaleRoom - kGap, line};
  layout.twoThirds = {dial.left, kGap / 2, dial.width, line};
  layout.offset = {dial.left, dial.top + dial.height, dial.width, std::min(line, kBelow)};
  return layout;
}

}  // namespace vk
