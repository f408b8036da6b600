// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorPlace.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vk {
namespace {

/// Opens windows of these places one after the other; returns their corners.
std::string opened(const std::vector<MonitorPlace>& stored, int areaWidth, int areaHeight) {
  std::vector<MonitorPlace> windows;
  std::string corners;
  for (const auto& place : stored) {
    windows.push_back(openingPlace(place, windows, areaWidth, areaHeight));
    corners += std::to_string(windows.back().left) + "," + std::to_string(windows.back().top) + " ";
  }
  return corners;
}

TEST(MonitorPlaces, CoverAsLittleAsTheyCanAndNoTitle) {
  const MonitorPlace fresh{0, 0, 400, 160};
  EXPECT_EQ(opened({fresh, fresh, fresh, fresh}, 1000, 400), "0,0 400,0 0,160 400,160 ");
  // The first row may be cut off by the area, the next not.
  EXPECT_EQ(opened({fresh, fresh, fresh, fresh}, 1000, 50), "0,0 400,0 600,0 30,30 ");
  // Stored places stay, and are stepped around: half covered titles count as covered.
  EXPECT_EQ(opened({{40, 20, 400, 160}, {5, 5, 400, 160}, fresh, fresh}, 450, 100),
            "40,20 5,5 60,60 90,90 ");
  EXPECT_EQ(opened({{200, 0, 400, 160}, fresh}, 450, 100), "200,0 0,0 ");
}

}  // namespace
}  // namespace vk
