// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorRecords.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vk {
namespace {

TEST(MonitorRecords, EveryKindHasItsRoomInWhatGoesOverAllKinds) {
  for (const auto kind : kMonitorKinds) {
    SCOPED_TRACE(static_cast<int>(kind));
    const std::size_t last = monitorCount(kind) - 1;
    EXPECT_LT(last, kMostMonitors);
    EXPECT_THROW(monitorFields(kind, last + 1), std::out_of_range);
    for (const std::size_t index : {std::size_t{0}, last}) {
      const auto fields = monitorFields(kind, index);
      EXPECT_TRUE(fields.serial.size() <= kMostChannels &&
                  fields.serial.size() == fields.channel.size());
      fields.on = true;
      fields.channel.back() = 4;
      resetMonitorRecords();
      EXPECT_TRUE(!fields.on && fields.channel.back() == 1);
    }
  }
}

}  // namespace
}  // namespace vk
