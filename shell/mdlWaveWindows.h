// SPDX-License-Identifier: MIT
// The 128 places for wave data windows. A place is taken for the rest of the run; closing the
// window does not free it.
#pragma once

#include <cstdint>

namespace vk {

inline constexpr int32_t kWaveWindows = 128;

struct WavePlace {
  int32_t index = 0;
  bool opened = false;  ///< false: no place was free, and the caller goes on with window 0
};
WavePlace takeWavePlace();
void resetWavePlaces();

}  // namespace vk
