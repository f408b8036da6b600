// SPDX-License-Identifier: MIT
// Places of child windows that are arranged next to each other; the last takes what a division
// leaves over. Pixels.
#pragma once

#include <vector>

namespace vk {

struct TilePlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const TilePlace&) const = default;
};

enum class Tiling { kHorizontal, kVertical };  ///< one below another, or side by side

std::vector<TilePlace> tilePlaces(Tiling tiling, int count, int width, int height);

}  // namespace vk
