// SPDX-License-Identifier: MIT
//
// The recorder's calendar: microseconds since 1970 without time zone, taken apart and put together.
#pragma once

#include <optional>

#include "instrument/simulator/clock.h"

namespace vksim {

struct DateTime {
  int year = 1970, month = 1, day = 1, hour = 0, minute = 0, second = 0;

  bool operator==(const DateTime&) const = default;
};

[[nodiscard]] DateTime dateTimeOf(Micros since1970);
/// Nothing for a day or a time of day that does not exist.
[[nodiscard]] std::optional<Micros> microsOf(const DateTime& value);

}  // namespace vksim
