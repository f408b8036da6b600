// SPDX-License-Identifier: MIT
// From the number that a recorder gives for a channel to the value in the channel's unit. A range
// with a decimal in its name counts tenths; an excitation of 0.5 V gives a quarter of the signal
// that the ranges are named for.
#pragma once

#include <cstddef>
#include <cstdint>

#include "recorder/mdlCodeTables.h"
#include "recorder/mdlMeasureSetting.h"

namespace vk {

struct ChannelScale {
  float coeff = 1.0F;
  float divisor = 1.0F;
  float factor = 1.0F;

  /// Each step in single precision.
  float value(float reading) const { return reading * coeff / divisor * factor; }
};

/// The ranges with a decimal in their name.
inline constexpr bool isTenthRange(int32_t range) {
  return (range >= 8 && range <= 11) || (range >= 20 && range <= 23);
}

inline ChannelScale channelScale(const MeasureConditions& conditions, std::size_t channel) {
  return {conditions.coeff[channel], isTenthRange(conditions.range[channel]) ? 10.0F : 1.0F,
          conditions.carrier[channel] == kCarrier05 ? 4.0F : 1.0F};
}

}  // namespace vk
