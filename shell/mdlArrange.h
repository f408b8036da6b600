// SPDX-License-Identifier: MIT
// Places of child windows that are arranged in an area. Pixels.
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

/// Next to each other without a gap, in one row or column, or in as many as leave each window a
/// size of use; the last takes what a division leaves over.
std::vector<TilePlace> tilePlaces(Tiling tiling, int count, int width, int height);

/// Overlapping, each a title bar below and right of the one before, with the size that it has;
/// from the corner again when the area is at its end.
std::vector<TilePlace> cascadePlaces(std::vector<TilePlace> windows, int width, int height);

}  // namespace vk
