// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorRecords.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vk {
namespace {

template <typename Records>
bool allDefault(const Records& records) {
  for (const auto& record : records) {
    if (!(record == typename Records::value_type{})) return false;
  }
  return true;
}

TEST(MonitorRecords, ResetReachesTheFirstAndTheLastOfEachKind) {
  for (const std::size_t last : {std::size_t{0}, std::size_t{1}}) {
    gNumMoni[last * (kNumMonitors - 1)].NUM_POINT = 3;
    gWaveMoni[last * (kWaveMonitors - 1)].WAV_CAPTION = "bridge";
    gXYMoni[last * (kXYMonitors - 1)].XY_CVALDOWN[1] = 1;
    gBarMoni[last * (kBarMonitors - 1)].BAR_CVAL_ONOFF[3] = true;
    gCircleMoni[last * (kCircleMonitors - 1)].CRL_ONOFF = true;
  }
  resetMonitorRecords();
  EXPECT_TRUE(allDefault(gNumMoni));
  EXPECT_TRUE(allDefault(gWaveMoni));
  EXPECT_TRUE(allDefault(gXYMoni));
  EXPECT_TRUE(allDefault(gBarMoni));
  EXPECT_TRUE(allDefault(gCircleMoni));
}

TEST(MonitorRecords, EveryKindHasItsRoomInWhatGoesOverAllKinds) {
  for (const auto kind : kMonitorKinds) {
    EXPECT_LE(monitorCount(kind), kMostMonitors);
    const auto fields = monitorFields(kind, monitorCount(kind) - 1);
    EXPECT_LE(fields.serial.size(), kMostChannels);
    EXPECT_EQ(fields.serial.size(), fields.channel.size());
    EXPECT_THROW(monitorFields(kind, monitorCount(kind)), std::out_of_range);
  }
}

}  // namespace
}  // namespace vk
