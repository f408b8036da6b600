// SPDX-License-Identifier: MIT
#include "monitors/mdlNumLayout.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(NumMonitorLayout, SurfacesFillWhatTheColumnLeaves) {
  const auto all = numLayout(392, 134, {66, 14, 22});
  const auto text = [](const MonitorPlace& area) {
    return fmt::format("{},{} {}x{}", area.left, area.top, area.width, area.height);
  };
  EXPECT_EQ(text(all.monitor), "74,4 263x86");
  EXPECT_EQ(text(all.unit), "337,4 39x86");
  EXPECT_EQ(text(all.max), "74,92 143x38");
  EXPECT_EQ(text(all.min), "233,92 143x38");
  EXPECT_EQ(text(all.frame), "4,84 66x46");
  EXPECT_FALSE(all.buttonsBeside);
  const auto halves = numLayout(405, 134, {66, 14, 22});
  EXPECT_EQ(text(halves.monitor), "74,4 274x86");
  EXPECT_EQ(text(halves.max), "74,92 150x38");
  const auto small = numLayout(50, 10, {66, 14, 22});
  EXPECT_TRUE(small.buttonsBeside);
  EXPECT_EQ(text(small.monitor), "74,4 1x1");
}

}  // namespace
}  // namespace vk
