// SPDX-License-Identifier: MIT
#include "monitors/mdlXYRecord.h"

namespace vk {

std::array<XYMonitorRec, kXYMonitors> gXYMoni;

namespace {

using Rec = XYMonitorRec;
using enum KeyGroup;

// The spellings are the file's.
constexpr MonitorKey kKeys[] = {
    // clang-format off
    {"XY_BACK", kColours, fieldOf<gXYMoni, &Rec::XY_BACK>},
    {"XY_FORE", kColours, fieldOf<gXYMoni, &Rec::XY_FORE>},
    {"XY_POINT", kColours, fieldOf<gXYMoni, &Rec::XY_POINT>},
    {"XY_C_BACK", kColours, fieldOf<gXYMoni, &Rec::XY_C_BACK>},
    {"XY_C_FORE", kColours, fieldOf<gXYMoni, &Rec::XY_C_FORE>},
    {"XY_C_POINT", kColours, fieldOf<gXYMoni, &Rec::XY_C_POINT>},
    {"XY_GND", kColours, fieldOf<gXYMoni, &Rec::XY_GND>},
    {"XY_GRID", kColours, fieldOf<gXYMoni, &Rec::XY_GRID>},
    {"XY_SER", kSettings, elementOf<gXYMoni, &Rec::XY_SER, 0>},
    {"XY_CH", kSettings, elementOf<gXYMoni, &Rec::XY_CH, 0>},
    {"XY_ONOFF", kSettings, fieldOf<gXYMoni, &Rec::XY_ONOFF>},
    {"XY_SPEED", kSettings, fieldOf<gXYMoni, &Rec::XY_SPEED>},
    {"XY_FULL", kSettings, elementOf<gXYMoni, &Rec::XY_FULL, 0>},
    {"XY_OFFSET", kSettings, elementOf<gXYMoni, &Rec::XY_OFFSET, 0>},
    {"XY_CVAL_ONOFF", kSettings, fieldOf<gXYMoni, &Rec::XY_CVAL_ONOFF>},
    {"XY_CVAL_UP", kSettings, elementOf<gXYMoni, &Rec::XY_CVAL_UP, 0>},
    {"XY_CVALDOWN", kSettings, elementOf<gXYMoni, &Rec::XY_CVALDOWN, 0>},
    {"XY_SUB_SER", kSettings, elementOf<gXYMoni, &Rec::XY_SER, 1>},
    {"XY_SUB_CH", kSettings, elementOf<gXYMoni, &Rec::XY_CH, 1>},
    {"XY_SUB_FULL", kSettings, elementOf<gXYMoni, &Rec::XY_FULL, 1>},
    {"XY_SUB_OFFSET", kSettings, elementOf<gXYMoni, &Rec::XY_OFFSET, 1>},
    {"XY_SUB_CVAL_UP", kSettings, elementOf<gXYMoni, &Rec::XY_CVAL_UP, 1>},
    {"XY_SUB_CVAL_DOWN", kSettings, elementOf<gXYMoni, &Rec::XY_CVALDOWN, 1>},
    {"XY_CAPTION", kCaptions, fieldOf<gXYMoni, &Rec::XY_CAPTION>},
    {"XY_TOP", kPlaces, fieldOf<gXYMoni, &Rec::XY_TOP>},
    {"XY_LEFT", kPlaces, fieldOf<gXYMoni, &Rec::XY_LEFT>},
    {"XY_HEIGHT", kPlaces, fieldOf<gXYMoni, &Rec::XY_HEIGHT>},
    {"XY_WIDTH", kPlaces, fieldOf<gXYMoni, &Rec::XY_WIDTH>},
    // clang-format on
};

MonitorFields fields(std::size_t index) {
  auto& r = gXYMoni.at(index);
  return {r.XY_ONOFF,  r.XY_CAPTION, r.XY_TOP, r.XY_LEFT,
          r.XY_HEIGHT, r.XY_WIDTH,   r.XY_SER, r.XY_CH};
}

void reset() {
  gXYMoni.fill({});
}

}  // namespace

constexpr MonitorRow kXYRow{kXYMonitors, fields, reset, kKeys};

}  // namespace vk
