// SPDX-License-Identifier: MIT
// The clock of a box, set by hand from six boxes: year, month, day, hour, minute, second. Only
// Enter checks a box; what is sent is what stands in the boxes, as long as it is numbers.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/clsDesktop.h"

namespace vk {

inline constexpr int kDateBoxes = 6;
inline constexpr std::string_view kDateCaption = "Date-Time Setting";
inline constexpr std::array<std::string_view, kDateBoxes> kDateLabels{"year", "month",  "day",
                                                                      "hour", "minute", "second"};
using DateTexts = std::array<std::string, kDateBoxes>;

DateTexts dateTexts(const DateTime& time);

/// Enter in a box (0 to 5). False after a message; the focus then stays.
[[nodiscard]] bool acceptDateBox(const DateTexts& texts, int box);

struct DateSent {
  int32_t result = 0;         ///< of RTM; 0 closes the form
  std::optional<int> badBox;  ///< no number: the message was shown, and nothing was sent
};
/// The Set button: the six numbers go to the box unchecked.
[[nodiscard]] DateSent sendDate(int32_t serial, const DateTexts& texts);

}  // namespace vk
