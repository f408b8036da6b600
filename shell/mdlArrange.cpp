// SPDX-License-Identifier: MIT
#include "shell/mdlArrange.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vk {

namespace {

constexpr int kLeastHeight = 110;
constexpr int kLeastWidth = 200;
constexpr int kCascadeStep = 28;
/// What a cascade leaves of a window inside the area, at least.
constexpr int kCascadeRest = 120;

/// Lines of windows one beside another; within a line the windows stand one below another.
std::vector<TilePlace> stacked(int count, int width, int height, int leastHeight) {
  const int inLine = std::clamp(height / leastHeight, 1, count);
  const int lines = (count + inLine - 1) / inLine;
  std::vector<TilePlace> places;
  for (int line = 0; line < lines; ++line) {
    const int left = width * line / lines;
    const int lineWidth = width * (line + 1) / lines - left;
    const int here = count * (line + 1) / lines - count * line / lines;
    for (int i = 0; i < here; ++i) {
      const int top = height * i / here;
      places.push_back({left, top, lineWidth, height * (i + 1) / here - top});
    }
  }
  return places;
}

}  // namespace

std::vector<TilePlace> tilePlaces(Tiling tiling, int count, int width, int height) {
  if (count < 1) return {};
  if (tiling == Tiling::kHorizontal) return stacked(count, width, height, kLeastHeight);
  auto places = stacked(count, height, width, kLeastWidth);
  for (auto& place : places) {
    std::swap(place.left, place.top);
    std::swap(place.width, place.height);
  }
  return places;
}

std::vector<TilePlace> cascadePlaces(std::vector<TilePlace> windows, int width, int height) {
  const int steps = std::max(1, (std::min(width, height) - kCascadeRest) / kCascadeStep + 1);
  for (int i = 0; i < ssize(windows); ++i) {
    const int step = i % steps * kCascadeStep;
    windows[i].left = step;
    windows[i].top = step;
  }
  return windows;
}

}  // namespace vk
