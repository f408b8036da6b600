// SPDX-License-Identifier: MIT
// The straight mapping between what is measured and where it stands in a picture: a value and its
// row, a time and its column, an angle of a dial. In single precision for live values, which come
// in that, in double precision for times and long recordings.
#pragma once

#include <cstdint>
#include <optional>

namespace vk {

/// Passes through one known point; the differences from it are scaled, so that large starting times
/// cost no precision.
template <typename Number>
struct Axis {
  Number value = 0;    ///< stands
  Number pixel = 0;    ///< here
  Number perUnit = 0;  ///< pixels to a unit, negative where values grow upward or to the left

  constexpr Number toPixel(Number at) const { return (at - value) * perUnit + pixel; }
  /// Nothing on an axis without a scale, on which all values stand in one place.
  constexpr std::optional<Number> toValue(Number at) const {
    if (perUnit == 0) return std::nullopt;
    return (at - pixel) / perUnit + value;
  }

  /// The axis on which `first` stands at `firstPixel` and `last` at `lastPixel`; without a scale
  /// when both values are the same.
  static constexpr Axis between(Number first, Number firstPixel, Number last, Number lastPixel) {
    const Number span = last - first;
    return {first, firstPixel, span == 0 ? Number{0} : (lastPixel - firstPixel) / span};
  }
};

/// The whole pixel, ties to even, within plus and minus a million: far off every picture, and safe
/// to add up. What is no number is 0.
int32_t toRow(double pixels);
/// The same within 32 bits, for a shift that may be larger than every picture.
int32_t toShift(double pixels);

}  // namespace vk
