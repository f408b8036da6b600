// SPDX-License-Identifier: MIT
#include "instrument/simulator/calendar.h"

namespace vksim {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

DateTime dateTimeOf(Micros since1970) {
  const std::chrono::sys_time<std::chrono::microseconds> at{std::chrono::microseconds(since1970)};
  const auto midnight = std::chrono::floor<std::chrono::days>(at);
  const std::chrono::year_month_day date{midnight};
  const auto seconds =
      static_cast<int>(std::chrono::duration_cast<std::chrono::seconds>(at - midnight).count());
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          seconds / 3600,
          seconds / 60 % 60,
          seconds % 60};
}

std::optional<Micros> microsOf(const DateTime& value) {
  const std::chrono::year_month_day date{year(value.year),
                                         month(static_cast<unsigned>(value.month)),
                                         day(static_cast<unsigned>(value.day))};
  const auto within = [](int number, int limit) { return number >= 0 && number < limit; };
  if (!date.ok() || !within(value.hour, 24) || !within(value.minute, 60) ||
      !within(value.second, 60))
    return std::nullopt;
  const auto days = std::chrono::sys_days(date).time_since_epoch();
  const std::int64_t seconds = std::chrono::duration_cast<std::chrono::seconds>(days).count() +
                               value.hour * std::int64_t{3600} + value.minute * std::int64_t{60} +
                               value.second;
  return seconds * kSecond;
}

}  // namespace vksim
