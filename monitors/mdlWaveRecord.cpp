// SPDX-License-Identifier: MIT
#include "monitors/mdlWaveRecord.h"

namespace vk {

std::array<WaveMonitorRec, kWaveMonitors> gWaveMoni;

namespace {

using Rec = WaveMonitorRec;
using enum KeyGroup;

// The spellings are the file's.
constexpr MonitorKey kKeys[] = {
    // clang-format off
    {"WAV_BACK", kColours, fieldOf<gWaveMoni, &Rec::WAV_BACK>},
    {"WAV_FORE", kColours, fieldOf<gWaveMoni, &Rec::WAV_FORE>},
    {"WAV_C_BACK", kColours, fieldOf<gWaveMoni, &Rec::WAV_C_BACK>},
    {"WAV_C_FORE", kColours, fieldOf<gWaveMoni, &Rec::WAV_C_FORE>},
    {"WAV_GND", kColours, fieldOf<gWaveMoni, &Rec::WAV_GND>},
    {"WAV_GRID", kColours, fieldOf<gWaveMoni, &Rec::WAV_GRID>},
    {"WAV_SER", kSettings, fieldOf<gWaveMoni, &Rec::WAV_SER>},
    {"WAV_CH", kSettings, fieldOf<gWaveMoni, &Rec::WAV_CH>},
    {"WAV_ONOFF", kSettings, fieldOf<gWaveMoni, &Rec::WAV_ONOFF>},
    {"WAV_SPEED", kSettings, fieldOf<gWaveMoni, &Rec::WAV_SPEED>},
    {"WAV_FULL", kSettings, fieldOf<gWaveMoni, &Rec::WAV_FULL>},
    {"WAV_OFFSET", kSettings, fieldOf<gWaveMoni, &Rec::WAV_OFFSET>},
    {"WAV_CUP_VALUE", kSettings, fieldOf<gWaveMoni, &Rec::WAV_CUP_VALUE>},
    {"WAV_CUP_ON", kSettings, fieldOf<gWaveMoni, &Rec::WAV_CUP_ON>},
    {"WAV_CVAL_ONOFF", kSettings, fieldOf<gWaveMoni, &Rec::WAV_CVAL_ONOFF>},
    {"WAV_CVAL_UP", kSettings, fieldOf<gWaveMoni, &Rec::WAV_CVAL_UP>},
    {"WAV_CVALDOWN", kSettings, fieldOf<gWaveMoni, &Rec::WAV_CVALDOWN>},
    {"WAV_CAPTION", kCaptions, fieldOf<gWaveMoni, &Rec::WAV_CAPTION>},
    {"WAV_TOP", kPlaces, fieldOf<gWaveMoni, &Rec::WAV_TOP>},
    {"WAV_LEFT", kPlaces, fieldOf<gWaveMoni, &Rec::WAV_LEFT>},
    {"WAV_HEIGHT", kPlaces, fieldOf<gWaveMoni, &Rec::WAV_HEIGHT>},
    {"WAV_WIDTH", kPlaces, fieldOf<gWaveMoni, &Rec::WAV_WIDTH>},
    // clang-format on
};

MonitorFields fields(std::size_t index) {
  auto& r = gWaveMoni.at(index);
  return {r.WAV_ONOFF,  r.WAV_CAPTION, r.WAV_TOP,       r.WAV_LEFT,
          r.WAV_HEIGHT, r.WAV_WIDTH,   {&r.WAV_SER, 1}, {&r.WAV_CH, 1}};
}

void reset() {
  gWaveMoni.fill({});
}

}  // namespace

constexpr MonitorRow kWaveRow{kWaveMonitors, fields, reset, kKeys};

}  // namespace vk
