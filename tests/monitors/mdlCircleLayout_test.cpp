// SPDX-License-Identifier: MIT
#include "monitors/mdlCircleLayout.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(CircleLayoutTest, DialAndLabelsKeepApartInEverySize) {
  struct Row {
    int width, height, dialX, dialY, side;
  };
  const Row rows[] = {{272, 140, 70, 15, 106}, {1900, 950, 70, 15, 919}, {600, 120, 70, 15, 89},
                      {132, 53, 2, 2, 34},     {150, 500, 2, 2, 52},     {60, 40, 2, 2, 1},
                      {1, 1, 2, 2, 1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.width);
    const auto layout = circleLayout(row.width, row.height, 13);
    EXPECT_EQ(layout.picture, (MonitorPlace{row.dialX, row.dialY, row.side, row.side}));
    if (row.side < 30) continue;
    const MonitorPlace places[] = {layout.picture,  layout.frame,     layout.value,  layout.unit,
                                   layout.serial,   layout.channel,   layout.yScale, layout.offset,
                                   layout.oneThird, layout.twoThirds, layout.full};
    for (const auto& a : places) {
      EXPECT_GE(a.left, 0);
      EXPECT_GE(a.top, 0);
      EXPECT_LE(a.left + a.width, row.width);
      EXPECT_LE(a.top + a.height, row.height);
      for (const auto& b : places) {
        if (&a == &b || a.width == 0 || b.width == 0) continue;
        EXPECT_TRUE(a.left + a.width <= b.left || b.left + b.width <= a.left ||
                    a.top + a.height <= b.top || b.top + b.height <= a.top)
            << &a - places << " and " << &b - places;
      }
    }
  }
}

}  // namespace
}  // namespace vk
