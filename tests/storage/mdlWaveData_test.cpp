// SPDX-License-Identifier: MIT
#include "storage/mdlWaveData.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/mdlText.h"

namespace {

using Words = std::vector<int16_t>;

TEST(WaveData, FramesAreLittleEndianAndWordsBehindTheEndReadZero) {
  std::istringstream file(std::string("\1\0\xFF\xFF\0\x80\xFF\x7F\5\0\7", 11));
  std::vector<Words> frames;
  std::string whole;
  for (Words words(2, 99); frames.size() < 4; frames.push_back(words)) {
    whole += vk::readFrame(file, words) ? "1" : "0";
  }
  EXPECT_EQ(frames, (std::vector<Words>{{1, -1}, {-32768, 32767}, {5, 0}, {0, 0}}));
  EXPECT_EQ(whole, "1100");
  // More series than a box has.
  Words many(200);
  std::istringstream bytes(std::string(398, '\1') + "\2\3");
  EXPECT_TRUE(vk::readFrame(bytes, many));
  EXPECT_EQ(many.front() + many[198] + many.back(), 0x101 * 2 + 0x302);
}

TEST(WaveData, PositionsSizesAndSinglePrecisionValues) {
  vk::HeaderRecord header;
  header[vk::kNumSeries] = "64";
  EXPECT_EQ(vk::frameBytes(header), 128);
  EXPECT_EQ(vk::samplePosition(2000000000, 63, 64), 256000000126);
  EXPECT_EQ(vk::textOf(vk::sampleValue(32767, 0.0305185F)), "999.9997");
}

}  // namespace
