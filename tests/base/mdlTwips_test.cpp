// SPDX-License-Identifier: MIT
#include "base/mdlTwips.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

std::string converted(int32_t (*convert)(int32_t), std::initializer_list<int32_t> values) {
  std::string all;
  for (const auto value : values) all += std::to_string(convert(value)) + " ";
  return all;
}

TEST(Twips, GoToTheNearestPixelAndBack) {
  EXPECT_EQ(converted(toPixels, {0, 7, 8, 15, 22, 23, 2415, -7, -8, -23, INT32_MAX}),
            "0 0 1 1 1 2 161 0 -1 -2 143165576 ");
  EXPECT_EQ(converted(toTwips, {0, 161, -3, 143165576, 143165577, INT32_MAX, INT32_MIN}),
            "0 2415 -45 2147483640 2147483647 2147483647 -2147483648 ");
}

}  // namespace
}  // namespace vk
