// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorRecords.h"

namespace vk {

std::array<NumMonitorRec, kNumMonitors> gNumMoni;
std::array<WaveMonitorRec, kWaveMonitors> gWaveMoni;
std::array<XYMonitorRec, kXYMonitors> gXYMoni;
std::array<BarMonitorRec, kBarMonitors> gBarMoni;
std::array<CircleMonitorRec, kCircleMonitors> gCircleMoni;

void resetMonitorRecords() {
  gNumMoni.fill({});
  gWaveMoni.fill({});
  gXYMoni.fill({});
  gBarMoni.fill({});
  gCircleMoni.fill({});
}

}  // namespace vk
