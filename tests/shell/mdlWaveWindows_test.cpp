// SPDX-License-Identifier: MIT
#include "shell/mdlWaveWindows.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(WaveWindows, PlacesAreTakenOnceAndTheNextOpenFallsToTheFirst) {
  resetWavePlaces();
  for (int32_t i = 0; i < 128; ++i) {
    const WavePlace place = takeWavePlace();
    EXPECT_TRUE(place.index == i && place.opened) << i;
  }
  EXPECT_TRUE(takeWavePlace().index == 0 && !takeWavePlace().opened);
  resetWavePlaces();
  EXPECT_TRUE(takeWavePlace().opened);
  resetWavePlaces();
}

}  // namespace
}  // namespace vk
