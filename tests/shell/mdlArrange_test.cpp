// SPDX-License-Identifier: MIT
#include "shell/mdlArrange.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

using Places = std::vector<TilePlace>;

TEST(Arrange, TilesCoverTheAreaWithoutGaps) {
  EXPECT_EQ(tilePlaces(Tiling::kHorizontal, 3, 100, 350),
            (Places{{0, 0, 100, 116}, {0, 116, 100, 117}, {0, 233, 100, 117}}));
  EXPECT_EQ(tilePlaces(Tiling::kVertical, 2, 401, 50),
            (Places{{0, 0, 200, 50}, {200, 0, 201, 50}}));
  EXPECT_EQ(tilePlaces(Tiling::kVertical, 0, 100, 50), Places{});
  // Five of at least 110 pixels do not fit below one another into 250.
  EXPECT_EQ(tilePlaces(Tiling::kHorizontal, 5, 300, 250), (Places{{0, 0, 100, 250},
                                                                  {100, 0, 100, 125},
                                                                  {100, 125, 100, 125},
                                                                  {200, 0, 100, 125},
                                                                  {200, 125, 100, 125}}));
  EXPECT_EQ(tilePlaces(Tiling::kVertical, 3, 250, 90),
            (Places{{0, 0, 250, 30}, {0, 30, 250, 30}, {0, 60, 250, 30}}));
}

TEST(Arrange, ACascadeKeepsTheSizes) {
  const Places windows{{9, 9, 300, 70}, {0, 0, 50, 60}, {7, 7, 20, 20}};
  EXPECT_EQ(cascadePlaces(windows, 900, 160),
            (Places{{0, 0, 300, 70}, {28, 28, 50, 60}, {0, 0, 20, 20}}));
}

}  // namespace
}  // namespace vk
