// SPDX-License-Identifier: MIT
#include "storage/mdlWaveOpenRequest.h"

namespace vk {

WaveOpenRequest waveOpenRequest;
int16_t waveRequestSet = 0;

void resetWaveOpenRequest() {
  waveOpenRequest = {};
  waveRequestSet = 0;
}

}  // namespace vk
