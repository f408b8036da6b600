// SPDX-License-Identifier: MIT
#include "shell/mdlArrange.h"

namespace vk {

std::vector<TilePlace> tilePlaces(Tiling tiling, int count, int width, int height) {
  std::vector<TilePlace> places;
  for (int i = 0; i < count; ++i) {
    if (tiling == Tiling::kHorizontal) {
      const int top = height * i / count;
      places.push_back({0, top, width, height * (i + 1) / count - top});
    } else {
      const int left = width * i / count;
      places.push_back({left, 0, width * (i + 1) / count - left, height});
    }
  }
  return places;
}

}  // namespace vk
