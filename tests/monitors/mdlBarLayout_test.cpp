// SPDX-License-Identifier: MIT
#include "monitors/mdlBarLayout.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(BarLayout, PanelsStandUnderTheirQuartersOrPacked) {
  const BarRoom room{20, 60, 24, 300};
  const auto wide = barLayout(445, 200, room);
  EXPECT_EQ(wide.picWave, (MonitorPlace{92, 8, 329, 126}));
  EXPECT_EQ(wide.picCh[3], (MonitorPlace{341, 134, 78, 66}));
  EXPECT_EQ(wide.sdrYPos.height, 126 + 16);
  EXPECT_EQ(wide.fraSet, (MonitorPlace{4, 8, 60, 50}));
  // Narrow, the buttons stand above the picture; low, the panels give way.
  const auto small = barLayout(218, 83, room);
  EXPECT_EQ(small.fraSet, (MonitorPlace{28, 2, 122, 24}));
  EXPECT_EQ(small.picWave, (MonitorPlace{28, 28, 166, 1}));
  EXPECT_EQ(small.picCh[3], (MonitorPlace{28 + 3 * 47, 29, 47, 54}));
  EXPECT_EQ(barLayout(1, 1, room).picWave.width, 1);
}

}  // namespace
}  // namespace vk
