// SPDX-License-Identifier: MIT
#include "shell/mdlWaveWindows.h"

namespace vk {

namespace {

/// Places are never given back, so the free ones are always the last.
int32_t taken = 0;

}  // namespace

WavePlace takeWavePlace() {
  if (taken >= kWaveWindows) return {0, false};
  return {taken++, true};
}

void resetWavePlaces() {
  taken = 0;
}

}  // namespace vk
