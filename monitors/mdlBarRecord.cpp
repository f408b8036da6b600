// SPDX-License-Identifier: MIT
#include "monitors/mdlBarRecord.h"

namespace vk {

std::array<BarMonitorRec, kBarMonitors> gBarMoni;

namespace {

using Rec = BarMonitorRec;
using enum KeyGroup;

// The spellings are the file's.
constexpr MonitorKey kKeys[] = {
    // clang-format off
    {"BAR_CAPTION", kLater, fieldOf<gBarMoni, &Rec::BAR_CAPTION>},
    {"BAR_TOP", kLater, fieldOf<gBarMoni, &Rec::BAR_TOP>},
    {"BAR_LEFT", kLater, fieldOf<gBarMoni, &Rec::BAR_LEFT>},
    {"BAR_HEIGHT", kLater, fieldOf<gBarMoni, &Rec::BAR_HEIGHT>},
    {"BAR_WIDTH", kLater, fieldOf<gBarMoni, &Rec::BAR_WIDTH>},
    {"BAR_ONOFF", kLater, fieldOf<gBarMoni, &Rec::BAR_ONOFF>},
    {"BAR_SPEED", kLater, fieldOf<gBarMoni, &Rec::BAR_SPEED>},
    {"BAR_BACK", kLater, fieldOf<gBarMoni, &Rec::BAR_BACK>},
    {"BAR_C_BACK", kLater, fieldOf<gBarMoni, &Rec::BAR_C_BACK>},
    {"BAR_GND", kLater, fieldOf<gBarMoni, &Rec::BAR_GND>},
    {"BAR_GRID", kLater, fieldOf<gBarMoni, &Rec::BAR_GRID>},
    {"BAR_1ST_SER", kLater, elementOf<gBarMoni, &Rec::BAR_SER, 0>},
    {"BAR_1ST_CH", kLater, elementOf<gBarMoni, &Rec::BAR_CH, 0>},
    {"BAR_1ST_FULL", kLater, elementOf<gBarMoni, &Rec::BAR_FULL, 0>},
    {"BAR_1ST_OFFSET", kLater, elementOf<gBarMoni, &Rec::BAR_OFFSET, 0>},
    {"BAR_1ST_CVAL_ONOFF", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_ONOFF, 0>},
    {"BAR_1ST_CVAL_UP", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_UP, 0>},
    {"BAR_1ST_CVAL_DOWN", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_DOWN, 0>},
    {"BAR_1ST_FORE", kLater, elementOf<gBarMoni, &Rec::BAR_FORE, 0>},
    {"BAR_1ST_CFORE", kLater, elementOf<gBarMoni, &Rec::BAR_CFORE, 0>},
    {"BAR_2ND_SER", kLater, elementOf<gBarMoni, &Rec::BAR_SER, 1>},
    {"BAR_2ND_CH", kLater, elementOf<gBarMoni, &Rec::BAR_CH, 1>},
    {"BAR_2ND_FULL", kLater, elementOf<gBarMoni, &Rec::BAR_FULL, 1>},
    {"BAR_2ND_OFFSET", kLater, elementOf<gBarMoni, &Rec::BAR_OFFSET, 1>},
    {"BAR_2ND_CVAL_ONOFF", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_ONOFF, 1>},
    {"BAR_2ND_CVAL_UP", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_UP, 1>},
    {"BAR_2ND_CVAL_DOWN", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_DOWN, 1>},
    {"BAR_2ND_FORE", kLater, elementOf<gBarMoni, &Rec::BAR_FORE, 1>},
    {"BAR_2ND_CFORE", kLater, elementOf<gBarMoni, &Rec::BAR_CFORE, 1>},
    {"BAR_3RD_SER", kLater, elementOf<gBarMoni, &Rec::BAR_SER, 2>},
    {"BAR_3RD_CH", kLater, elementOf<gBarMoni, &Rec::BAR_CH, 2>},
    {"BAR_3RD_FULL", kLater, elementOf<gBarMoni, &Rec::BAR_FULL, 2>},
    {"BAR_3RD_OFFSET", kLater, elementOf<gBarMoni, &Rec::BAR_OFFSET, 2>},
    {"BAR_3RD_CVAL_ONOFF", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_ONOFF, 2>},
    {"BAR_3RD_CVAL_UP", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_UP, 2>},
    {"BAR_3RD_CVAL_DOWN", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_DOWN, 2>},
    {"BAR_3RD_FORE", kLater, elementOf<gBarMoni, &Rec::BAR_FORE, 2>},
    {"BAR_3RD_CFORE", kLater, elementOf<gBarMoni, &Rec::BAR_CFORE, 2>},
    {"BAR_4TH_SER", kLater, elementOf<gBarMoni, &Rec::BAR_SER, 3>},
    {"BAR_4TH_CH", kLater, elementOf<gBarMoni, &Rec::BAR_CH, 3>},
    {"BAR_4TH_FULL", kLater, elementOf<gBarMoni, &Rec::BAR_FULL, 3>},
    {"BAR_4TH_OFFSET", kLater, elementOf<gBarMoni, &Rec::BAR_OFFSET, 3>},
    {"BAR_4TH_CVAL_ONOFF", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_ONOFF, 3>},
    {"BAR_4TH_CVAL_UP", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_UP, 3>},
    {"BAR_4TH_CVAL_DOWN", kLater, elementOf<gBarMoni, &Rec::BAR_CVAL_DOWN, 3>},
    {"BAR_4TH_FORE", kLater, elementOf<gBarMoni, &Rec::BAR_FORE, 3>},
    {"BAR_4TH_CFORE", kLater, elementOf<gBarMoni, &Rec::BAR_CFORE, 3>},
    // clang-format on
};

MonitorFields fields(std::size_t index) {
  auto& r = gBarMoni.at(index);
  return {r.BAR_ONOFF,  r.BAR_CAPTION, r.BAR_TOP, r.BAR_LEFT,
          r.BAR_HEIGHT, r.BAR_WIDTH,   r.BAR_SER, r.BAR_CH};
}

void reset() {
  gBarMoni.fill({});
}

}  // namespace

constexpr MonitorRow kBarRow{kBarMonitors, fields, reset, kKeys};

}  // namespace vk
