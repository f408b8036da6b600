// SPDX-License-Identifier: MIT
#include "monitors/mdlWaveLayout.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(WaveLayout, PictureLeavesTheStripAndTheScalesTheirRoom) {
  const auto at = waveLayout(445, 134, {13, 70, 40, 20, 70, 90});
  EXPECT_EQ(at.picWave.width, 445 - at.picWave.left - at.picMaxMin.width - 1 - 48);
  EXPECT_EQ(at.picWave.height, 134 - 2 * at.picWave.top);
  EXPECT_EQ(at.picMaxMin.left, at.picWave.left + at.picWave.width + 1);
  EXPECT_EQ(at.sdrYPos.height, at.picWave.height + 15);
  EXPECT_GT(at.fraSet.width, 0);
  const auto small = waveLayout(10, 5, {13, 70, 40, 20, 70, 90});
  EXPECT_EQ(small.picWave.width, 1);
  EXPECT_EQ(small.picWave.height, 1);
  EXPECT_EQ(small.fraSet.width, 0);
}

}  // namespace
}  // namespace vk
