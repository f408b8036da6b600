// SPDX-License-Identifier: MIT
#include "monitors/mdlNumRecord.h"

namespace vk {

std::array<NumMonitorRec, kNumMonitors> gNumMoni;

namespace {

using Rec = NumMonitorRec;
using enum KeyGroup;

// The spellings are the file's.
constexpr MonitorKey kKeys[] = {
    // clang-format off
    {"NUM_BACK", kColours, fieldOf<gNumMoni, &Rec::NUM_BACK>},
    {"NUM_FORE", kColours, fieldOf<gNumMoni, &Rec::NUM_FORE>},
    {"NUM_C_BACK", kColours, fieldOf<gNumMoni, &Rec::NUM_C_BACK>},
    {"NUM_C_FORE", kColours, fieldOf<gNumMoni, &Rec::NUM_C_FORE>},
    {"NUM_SER", kSettings, fieldOf<gNumMoni, &Rec::NUM_SER>},
    {"NUM_CH", kSettings, fieldOf<gNumMoni, &Rec::NUM_CH>},
    {"NUM_ONOFF", kSettings, fieldOf<gNumMoni, &Rec::NUM_ONOFF>},
    {"NUM_SPEED", kSettings, fieldOf<gNumMoni, &Rec::NUM_SPEED>},
    {"NUM_POINT", kSettings, fieldOf<gNumMoni, &Rec::NUM_POINT>},
    {"NUM_CVAL_ONOFF", kSettings, fieldOf<gNumMoni, &Rec::NUM_CVAL_ONOFF>},
    {"NUM_CVAL_UP", kSettings, fieldOf<gNumMoni, &Rec::NUM_CVAL_UP>},
    {"NUM_CVAL_DOWN", kSettings, fieldOf<gNumMoni, &Rec::NUM_CVAL_DOWN>},
    {"NUM_CAPTION", kCaptions, fieldOf<gNumMoni, &Rec::NUM_CAPTION>},
    {"NUM_TOP", kPlaces, fieldOf<gNumMoni, &Rec::NUM_TOP>},
    {"NUM_LEFT", kPlaces, fieldOf<gNumMoni, &Rec::NUM_LEFT>},
    {"NUM_HEIGHT", kPlaces, fieldOf<gNumMoni, &Rec::NUM_HEIGHT>},
    {"NUM_WIDTH", kPlaces, fieldOf<gNumMoni, &Rec::NUM_WIDTH>},
    // clang-format on
};

MonitorFields fields(std::size_t index) {
  auto& r = gNumMoni.at(index);
  return {r.NUM_ONOFF,  r.NUM_CAPTION, r.NUM_TOP,       r.NUM_LEFT,
          r.NUM_HEIGHT, r.NUM_WIDTH,   {&r.NUM_SER, 1}, {&r.NUM_CH, 1}};
}

void reset() {
  gNumMoni.fill({});
}

}  // namespace

constexpr MonitorRow kNumRow{kNumMonitors, fields, reset, kKeys};

}  // namespace vk
