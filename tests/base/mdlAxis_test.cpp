// SPDX-License-Identifier: MIT
#include "base/mdlAxis.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

namespace vk {
namespace {

TEST(Axis, BothEndsStandWhereTheyWerePutAndComeBack) {
  const struct {
    double first, firstPixel, last, lastPixel, middle, middlePixel;
  } rows[] = {
      {-5, 399, 5, 0, 0, 199.5},                  // a value grows upward
      {0, 0, 10, 500, 2.5, 125},                  // a time to the right
      {1e9, 10, 1e9 + 0.5, 110, 1e9 + 0.25, 60},  // late in a long recording
      {1000, 90, -1000, 360, 500, 157.5},         // a dial turned backward
  };
  for (const auto& row : rows) {
    const auto axis = Axis<double>::between(row.first, row.firstPixel, row.last, row.lastPixel);
    const std::pair<double, double> points[] = {
        {row.first, row.firstPixel}, {row.last, row.lastPixel}, {row.middle, row.middlePixel}};
    for (const auto& [value, pixel] : points) {
      EXPECT_DOUBLE_EQ(axis.toPixel(value), pixel) << value;
      EXPECT_DOUBLE_EQ(axis.toValue(pixel).value_or(NAN), value) << pixel;
    }
  }
}

TEST(Axis, WithoutALengthEverythingStandsInOnePlace) {
  const auto axis = Axis<float>::between(3, 10, 3, 20);
  EXPECT_EQ(axis.toPixel(1000), 10);
  EXPECT_EQ(axis.toValue(10), std::nullopt);
}

TEST(Axis, WholePixelsTieToEvenAndNeverOverflow) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::pair<double, int32_t> rows[] = {
      {2.5, 2}, {3.5, 4}, {-0.5, 0}, {1e30, 1000000}, {-kInfinity, -1000000}, {std::nan(""), 0}};
  for (const auto& [pixels, row] : rows) EXPECT_EQ(toRow(pixels), row) << pixels;
  EXPECT_EQ(toShift(1e30), std::numeric_limits<int32_t>::max());
  EXPECT_EQ(toShift(-1500000.5), -1500000);
}

}  // namespace
}  // namespace vk
