// SPDX-License-Identifier: MIT
#include "monitors/mdlCircleRecord.h"

namespace vk {

std::array<CircleMonitorRec, kCircleMonitors> gCircleMoni;

namespace {

using Rec = CircleMonitorRec;
using enum KeyGroup;

// The spellings are the file's.
constexpr MonitorKey kKeys[] = {
    // clang-format off
    {"CRL_CAPTION", kLater, fieldOf<gCircleMoni, &Rec::CRL_CAPTION>},
    {"CRL_TOP", kLater, fieldOf<gCircleMoni, &Rec::CRL_TOP>},
    {"CRL_LEFT", kLater, fieldOf<gCircleMoni, &Rec::CRL_LEFT>},
    {"CRL_HEIGHT", kLater, fieldOf<gCircleMoni, &Rec::CRL_HEIGHT>},
    {"CRL_WIDTH", kLater, fieldOf<gCircleMoni, &Rec::CRL_WIDTH>},
    {"CRL_ONOFF", kLater, fieldOf<gCircleMoni, &Rec::CRL_ONOFF>},
    {"CRL_SPEED", kLater, fieldOf<gCircleMoni, &Rec::CRL_SPEED>},
    {"CRL_BACK", kLater, fieldOf<gCircleMoni, &Rec::CRL_BACK>},
    {"CRL_C_BACK", kLater, fieldOf<gCircleMoni, &Rec::CRL_C_BACK>},
    {"CRL_GND", kLater, fieldOf<gCircleMoni, &Rec::CRL_GND>},
    {"CRL_GRID", kLater, fieldOf<gCircleMoni, &Rec::CRL_GRID>},
    {"CRL_SER", kLater, fieldOf<gCircleMoni, &Rec::CRL_SER>},
    {"CRL_CH", kLater, fieldOf<gCircleMoni, &Rec::CRL_CH>},
    {"CRL_FULL", kLater, fieldOf<gCircleMoni, &Rec::CRL_FULL>},
    {"CRL_OFFSET", kLater, fieldOf<gCircleMoni, &Rec::CRL_OFFSET>},
    {"CRL_CVAL_ONOFF", kLater, fieldOf<gCircleMoni, &Rec::CRL_CVAL_ONOFF>},
    {"CRL_CVAL_UP", kLater, fieldOf<gCircleMoni, &Rec::CRL_CVAL_UP>},
    {"CRL_CVAL_DOWN", kLater, fieldOf<gCircleMoni, &Rec::CRL_CVAL_DOWN>},
    {"CRL_FORE", kLater, fieldOf<gCircleMoni, &Rec::CRL_FORE>},
    {"CRL_C_FORE", kLater, fieldOf<gCircleMoni, &Rec::CRL_C_FORE>},
    // clang-format on
};

MonitorFields fields(std::size_t index) {
  auto& r = gCircleMoni.at(index);
  return {r.CRL_ONOFF,  r.CRL_CAPTION, r.CRL_TOP,       r.CRL_LEFT,
          r.CRL_HEIGHT, r.CRL_WIDTH,   {&r.CRL_SER, 1}, {&r.CRL_CH, 1}};
}

void reset() {
  gCircleMoni.fill({});
}

}  // namespace

constexpr MonitorRow kCircleRow{kCircleMonitors, fields, reset, kKeys};

}  // namespace vk
