// SPDX-License-Identifier: MIT
// Where the fields of the instrument's fixed texts stand. Positions count from 1; a field of a
// channel is followed by that of the next channel.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/mdlText.h"

namespace vk {

struct WireField {
  std::size_t at;
  std::size_t width;

  /// The field in a text; what lies beyond the text's end is missing.
  std::string of(std::string_view text, std::size_t channel = 1) const {
    return mid(text, at + width * (channel - 1), width);
  }
};

/// The settings string: SET, and the reply to LST0.
namespace setting_text {
inline constexpr WireField kMode{1, 1};
inline constexpr WireField kRange{2, 2};
inline constexpr WireField kFilter{10, 2};
inline constexpr WireField kTrigger{18, 1};
inline constexpr WireField kSlope{19, 1};
inline constexpr WireField kLevel{23, 4};
inline constexpr WireField kSampling{39, 4};
inline constexpr WireField kPreArea{43, 3};
inline constexpr WireField kDataSize{46, 4};
inline constexpr WireField kCarrier{50, 1};
}  // namespace setting_text

/// The reply to STA.
namespace status_text {
inline constexpr WireField kState{1, 2};
inline constexpr WireField kDate{4, 8};
inline constexpr WireField kTime{13, 8};
inline constexpr WireField kDateTime{4, 17};
inline constexpr WireField kSync{22, 2};
inline constexpr WireField kBalance{25, 1};
inline constexpr WireField kSerial{30, 7};
inline constexpr WireField kBootRom{38, 4};
inline constexpr WireField kMainRom{43, 4};
}  // namespace status_text

/// The reply to FLN, and the card text of a record.
namespace card_text {
inline constexpr WireField kMeasured{1, 3};
inline constexpr WireField kReserved{5, 3};
}  // namespace card_text

/// The reply to MON: a reading per channel.
inline constexpr std::size_t kReadingLength = 6;

}  // namespace vk
