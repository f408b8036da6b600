// SPDX-License-Identifier: MIT
// The count-down of the notice that closes by itself: ten seconds in steps of a fifth.
#pragma once

#include <cstdint>
#include <string>

#include "base/mdlText.h"

namespace vk {

inline constexpr int32_t kNoticeDelayMs = 1000;
inline constexpr int32_t kNoticeStepMs = 200;

struct NoticeCountdown {
  int32_t fifths = 50;

  /// One step; false when the time is over.
  bool tick() { return --fifths > 0; }
  /// The seconds left, "10 s".
  std::string text() const { return textOf(roundWhole(fifths / 5.0)) + " s"; }
};

}  // namespace vk
