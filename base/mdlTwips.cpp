// SPDX-License-Identifier: MIT
#include "base/mdlTwips.h"

#include <algorithm>
#include <limits>

#include "base/mdlText.h"

namespace vk {

int32_t toPixels(int32_t twips) {
  return roundWhole(static_cast<double>(twips) / kTwipsPerPixel);
}

int32_t toTwips(int32_t pixels) {
  using Limits = std::numeric_limits<int32_t>;
  const int64_t twips = int64_t{pixels} * kTwipsPerPixel;
  return static_cast<int32_t>(std::clamp<int64_t>(twips, Limits::min(), Limits::max()));
}

}  // namespace vk
