// SPDX-License-Identifier: MIT
#include "shell/mdlArrange.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(Arrange, TilesCoverTheAreaWithoutGaps) {
  using Places = std::vector<TilePlace>;
  EXPECT_EQ(tilePlaces(Tiling::kHorizontal, 3, 100, 50),
            (Places{{0, 0, 100, 16}, {0, 16, 100, 17}, {0, 33, 100, 17}}));
  EXPECT_EQ(tilePlaces(Tiling::kVertical, 2, 101, 50), (Places{{0, 0, 50, 50}, {50, 0, 51, 50}}));
  EXPECT_EQ(tilePlaces(Tiling::kVertical, 0, 100, 50), Places{});
}

}  // namespace
}  // namespace vk
