// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorPlace.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace vk {

namespace {

constexpr int kTitle = 30;  // of a child window, its rim included

int64_t overlap(const MonitorPlace& a, const MonitorPlace& b) {
  const int64_t columns = std::min(a.left + a.width, b.left + b.width) - std::max(a.left, b.left);
  const int64_t rows = std::min(a.top + a.height, b.top + b.height) - std::max(a.top, b.top);
  return std::max<int64_t>(0, columns) * std::max<int64_t>(0, rows);
}

/// The windows would show their titles in one place.
bool sameCorner(const MonitorPlace& a, const MonitorPlace& b) {
  return std::abs(a.left - b.left) < kTitle && std::abs(a.top - b.top) < kTitle;
}

/// Beside and below the others and at the far edges of the area, all of it in the area, but for the
/// first row: the area grows downward or scrolls.
std::vector<MonitorPlace> placesIn(MonitorPlace window, std::span<const MonitorPlace> others,
                                   int areaWidth, int areaHeight) {
  std::vector<int> lefts{0, areaWidth - window.width};
  std::vector<int> tops{0, areaHeight - window.height};
  for (const auto& other : others) {
    lefts.push_back(other.left + other.width);
    tops.push_back(other.top + other.height);
  }
  std::ranges::sort(lefts);
  std::ranges::sort(tops);
  std::vector<MonitorPlace> places;
  for (const int top : tops) {
    if (top < 0 || (top > 0 && top + window.height > areaHeight)) continue;
    for (const int left : lefts) {
      if (left < 0 || left + window.width > areaWidth) continue;
      places.push_back({left, top, window.width, window.height});
    }
  }
  return places;
}

}  // namespace

MonitorPlace openingPlace(const MonitorPlace& stored, std::span<const MonitorPlace> others,
                          int areaWidth, int areaHeight) {
  const auto taken = [&](const MonitorPlace& place) {
    return std::ranges::any_of(others, [&](const auto& other) { return sameCorner(place, other); });
  };
  if (stored.left != 0 || stored.top != 0 || !taken(stored)) return stored;
  // A step that is free there always is, also where no other place is left.
  MonitorPlace step = stored;
  while (taken(step)) {
    step.left += kTitle;
    step.top += kTitle;
  }
  auto places = placesIn(stored, others, areaWidth, areaHeight);
  std::erase_if(places, taken);
  places.push_back(step);
  return *std::ranges::min_element(places, {}, [&](const MonitorPlace& place) {
    int64_t covered = 0;
    for (const auto& other : others) covered += overlap(place, other);
    return covered;
  });
}

}  // namespace vk
