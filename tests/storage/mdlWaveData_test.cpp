// SPDX-License-Identifier: MIT
#include "storage/mdlWaveData.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/mdlText.h"

namespace {

using Words = std::vector<int16_t>;

TEST(WaveData, FramesAreLittleEndianAndWordsBehindTheEndReadZero) {
  const struct {
    std::string bytes;
    Words first, second;
  } rows[] = {{{"\1\0\xFF\xFF\0\x80\xFF\x7F", 8}, {1, -1}, {-32768, 32767}},
              {{"\5\0\7", 3}, {5, 0}, {0, 0}},
              {{"\5\0\7\1\2", 5}, {5, 263}, {0, 0}}};
  for (const auto& row : rows) {
    std::istringstream file(row.bytes);
    Words words(2, 99);
    EXPECT_EQ(vk::readFrame(file, words), row.bytes.size() >= 4);
    EXPECT_EQ(words, row.first);
    EXPECT_EQ(vk::readFrame(file, words), row.bytes.size() >= 8);
    EXPECT_EQ(words, row.second);
  }
}

TEST(WaveData, FramesOfMoreThanSixtyFourSeries) {
  std::string bytes;
  Words expected, words(200);
  for (int i = 0; i < 200; ++i) {
    expected.push_back(static_cast<int16_t>(i * 331 - 30000));
    bytes += {static_cast<char>(expected.back() & 255), static_cast<char>(expected.back() >> 8)};
  }
  std::istringstream file(bytes);
  EXPECT_TRUE(vk::readFrame(file, words));
  EXPECT_EQ(words, expected);
}

TEST(WaveData, PositionsSizesAndSinglePrecisionValues) {
  vk::HeaderRecord header;
  header[vk::kNumSeries] = "64";
  EXPECT_EQ(vk::frameBytes(header), 128);
  header[vk::kNumSeries] = "";
  EXPECT_THROW(static_cast<void>(vk::frameBytes(header)), vk::TypeMismatch);
  EXPECT_EQ(vk::samplePosition(2000000000, 63, 64), 256000000126);
  EXPECT_EQ(vk::textOf(vk::sampleValue(32767, 0.0305185F)), "999.9997");
  EXPECT_EQ(vk::sampleValue(-32768, 2.0F), -65536.0F);
}

}  // namespace
