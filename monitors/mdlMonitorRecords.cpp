// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorRecords.h"

namespace vk {

std::array<NumMonitorRec, kNumMonitors> gNumMoni;
std::array<WaveMonitorRec, kWaveMonitors> gWaveMoni;
std::array<XYMonitorRec, kXYMonitors> gXYMoni;
std::array<BarMonitorRec, kBarMonitors> gBarMoni;
std::array<CircleMonitorRec, kCircleMonitors> gCircleMoni;

MonitorFields monitorFields(MonitorKind kind, std::size_t index) {
  switch (kind) {
    case MonitorKind::kNumerical: {
      auto& r = gNumMoni.at(index);
      return {r.NUM_ONOFF,  r.NUM_CAPTION, r.NUM_TOP,       r.NUM_LEFT,
              r.NUM_HEIGHT, r.NUM_WIDTH,   {&r.NUM_SER, 1}, {&r.NUM_CH, 1}};
    }
    case MonitorKind::kWave: {
      auto& r = gWaveMoni.at(index);
      return {r.WAV_ONOFF,  r.WAV_CAPTION, r.WAV_TOP,       r.WAV_LEFT,
              r.WAV_HEIGHT, r.WAV_WIDTH,   {&r.WAV_SER, 1}, {&r.WAV_CH, 1}};
    }
    case MonitorKind::kXY: {
      auto& r = gXYMoni.at(index);
      return {r.XY_ONOFF,  r.XY_CAPTION, r.XY_TOP, r.XY_LEFT,
              r.XY_HEIGHT, r.XY_WIDTH,   r.XY_SER, r.XY_CH};
    }
    case MonitorKind::kBar: {
      auto& r = gBarMoni.at(index);
      return {r.BAR_ONOFF,  r.BAR_CAPTION, r.BAR_TOP, r.BAR_LEFT,
              r.BAR_HEIGHT, r.BAR_WIDTH,   r.BAR_SER, r.BAR_CH};
    }
    case MonitorKind::kCircle:
      break;
  }
  auto& r = gCircleMoni.at(index);
  return {r.CRL_ONOFF,  r.CRL_CAPTION, r.CRL_TOP,       r.CRL_LEFT,
          r.CRL_HEIGHT, r.CRL_WIDTH,   {&r.CRL_SER, 1}, {&r.CRL_CH, 1}};
}

void resetMonitorRecords() {
  gNumMoni.fill({});
  gWaveMoni.fill({});
  gXYMoni.fill({});
  gBarMoni.fill({});
  gCircleMoni.fill({});
}

}  // namespace vk
