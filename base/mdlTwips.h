// SPDX-License-Identifier: MIT
// Twips, the unit of stored window geometry: 15 to a device-independent pixel, always.
#pragma once

#include <cstdint>

namespace vk {

inline constexpr int32_t kTwipsPerPixel = 15;

/// Nearest pixel, ties to the even one.
int32_t toPixels(int32_t twips);
/// Values beyond 32 bits stop at the limit.
int32_t toTwips(int32_t pixels);

}  // namespace vk
