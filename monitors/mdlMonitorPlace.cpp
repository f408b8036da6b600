// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorPlace.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

namespace vk {

namespace {

constexpr int kTitle = 30;  // of a child window, its rim included

bool overlap(const MonitorPlace& a, const MonitorPlace& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

/// The windows would show their titles in one place.
bool sameCorner(const MonitorPlace& a, const MonitorPlace& b) {
  return std::abs(a.left - b.left) < kTitle && std::abs(a.top - b.top) < kTitle;
}

/// Left to right, then top to bottom, along the edges of the others. The first row may be higher
/// than the area, which grows or scrolls.
std::optional<MonitorPlace> gapFor(MonitorPlace window, std::span<const MonitorPlace> others,
                                   int areaWidth, int areaHeight) {
  std::vector<int> lefts{0};
  std::vector<int> tops{0};
  for (const auto& other : others) {
    lefts.push_back(std::max(0, other.left + other.width));
    tops.push_back(std::max(0, other.top + other.height));
  }
  std::ranges::sort(lefts);
  std::ranges::sort(tops);
  for (const int top : tops) {
    if (top > 0 && top + window.height > areaHeight) continue;
    for (const int left : lefts) {
      if (left + window.width > areaWidth) continue;
      window.left = left;
      window.top = top;
      if (std::ranges::none_of(others, [&](const auto& other) { return overlap(window, other); }))
        return window;
    }
  }
  return std::nullopt;
}

}  // namespace

MonitorPlace openingPlace(const MonitorPlace& stored, std::span<const MonitorPlace> others,
                          int areaWidth, int areaHeight) {
  const auto taken = [&](const MonitorPlace& place) {
    return std::ranges::any_of(others, [&](const auto& other) { return sameCorner(place, other); });
  };
  if (stored.left != 0 || stored.top != 0 || !taken(stored)) return stored;
  if (const auto gap = gapFor(stored, others, areaWidth, areaHeight)) return *gap;
  // Each window takes one step at most, so a step is free before all of them are tried; windows
  // between two steps take both.
  MonitorPlace place = stored;
  for (std::size_t step = 0; step <= 2 * others.size() && taken(place); ++step) {
    place.left += kTitle;
    place.top += kTitle;
  }
  return place;
}

}  // namespace vk
