// SPDX-License-Identifier: MIT
#include "monitors/mdlXYLayout.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(XYLayout, RowsWithoutRoomAreLeftOut) {
  const XYMetrics metrics{88, 32, 13, 22};
  const auto tops = [&](int width, int height) {
    const auto all = xyLayout(width, height, metrics);
    const auto& b = all.block[1];
    return fmt::format("{} {}: {} {} {} {} {} {} /{}", all.wave.width, all.columnWidth, b.serial,
                       b.channel, b.value, b.unit, b.scale, b.offset, all.frame.top);
  };
  EXPECT_EQ(tops(345, 187), "163 147: 72 72 85 85 103 116 /163");
  EXPECT_EQ(tops(252, 347), "130 87: 80 93 106 93 119 132 /323");
  EXPECT_EQ(tops(169, 77), "47 87: -1 -1 27 -1 40 -1 /53");
  EXPECT_EQ(tops(10, 10), "1 1: -1 -1 13 -1 -1 -1 /0");
}

}  // namespace
}  // namespace vk
