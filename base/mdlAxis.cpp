// SPDX-License-Identifier: MIT
#include "base/mdlAxis.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/mdlText.h"

namespace vk {

namespace {

constexpr double kFarOff = 1000000.0;

int32_t wholeWithin(double pixels, double least, double most) {
  return std::isnan(pixels) ? 0 : roundWhole(std::clamp(pixels, least, most));
}

}  // namespace

int32_t toRow(double pixels) {
  return wholeWithin(pixels, -kFarOff, kFarOff);
}

int32_t toShift(double pixels) {
  using Limits = std::numeric_limits<int32_t>;
  return wholeWithin(pixels, double{Limits::min()}, double{Limits::max()});
}

}  // namespace vk
