// SPDX-License-Identifier: MIT
#include "monitors/mdlCircleMonitor.h"

#include <gtest/gtest.h>

#include <limits>

#include "recorder/mdlBoxTable.h"
#include "tests/support/recording_picture.h"

namespace vktest {
namespace {

using vk::CircleMonitor;
using vk::CircleMonitorRec;

constexpr vk::CircleColours kColours{0xAAAAAA, 0xBBBBBB};

class CircleMonitorTest : public ::testing::Test {
 protected:
  CircleMonitorTest() {
    vk::resetBoxTable();
    size(100);
  }
  ~CircleMonitorTest() override { vk::resetBoxTable(); }

  void size(int side) {
    for (auto* picture : {&wave, &sub, &dial}) picture->resize(side, side);
    monitor.setColours(kColours);
    monitor.resize(side, side);
  }
  void start(int32_t offset, float full) {
    record.CRL_OFFSET = offset;
    record.CRL_FULL = full;
    const int32_t slot = 1;
    monitor.init({&slot, 1});
  }
  void take(std::string_view reading) { monitor.take({&reading, 1}); }
  std::string drawEmpty() {
    log.clear();
    size(wave.width());
    monitor.show(surfaces);
    return wave.take();
  }
  /// What the readings draw, shown once after all of them.
  std::string show(std::initializer_list<std::string_view> readings) {
    monitor.show(surfaces);
    log.clear();
    for (const auto reading : readings) take(reading);
    monitor.show(surfaces);
    return wave.take();
  }
  /// Only the operations with a colour, which tell marks, needle and lamp.
  std::string strokes(std::initializer_list<std::string_view> readings) {
    std::string kept;
    const std::string all = show(readings);
    for (std::size_t at = 0; at < all.size();) {
      const auto line = all.substr(at, all.find('\n', at) + 1 - at);
      at += line.size();
      if (line.starts_with("sub: line") || line.starts_with("sub: filled")) kept += line.substr(5);
    }
    return kept;
  }

  std::string log;
  RecordingPicture wave{"wave", 0, 0, log};
  RecordingPicture sub{"sub", 0, 0, log};
  RecordingPicture dial{"dial", 0, 0, log};
  vk::MonitorSurfaces surfaces{wave, sub, &dial};
  CircleMonitorRec record;
  CircleMonitor monitor{record};
};

TEST_F(CircleMonitorTest, TheDialHasFaceHubAndLampUnderItsTicks) {
  start(0, 1000);
  const auto picture = drawEmpty();
  EXPECT_TRUE(
      picture.starts_with("wave: clear AAAAAA\n"
                          "dial: filled 0,0 99,99 AAAAAA\n"
                          "dial: disc 50,50 r46 2F2F2F\n"
                          "dial: wide 1\n"
                          "dial: circle 50,50 r48 808080\n"
                          "dial: arc 50,50 r9 40..240 BBBBBB\n"
                          "dial: arc 50,50 r9 240..40 808080\n"
                          "dial: box 70,67 83,75 808080\n"
                          "dial: line 83,67 83,75 BBBBBB\n"
                          "dial: line 70,75 84,75 BBBBBB\n"
                          "dial: line 50,96 50,91 4F4F4F\n"))
      << picture;
  EXPECT_TRUE(
      picture.ends_with("dial: line 95,50 90,50 8F8F8F\n"
                        "sub: copy dial 0,0 100x100 to 0,0\n"
                        "wave: copy sub 0,0 100x100 to 0,0\n"
                        "wave: refresh\n"))
      << picture;
}

TEST_F(CircleMonitorTest, TicksRunClockwiseFromTheBottomToTheRight) {
  start(0, 1000);
  const auto picture = drawEmpty();
  EXPECT_NE(picture.find("dial: line 50,96 50,91 4F4F4F\n"
                         "dial: line 43,95 44,90 4F4F4F\n"),
            picture.npos)
      << picture;
  EXPECT_NE(picture.find("dial: line 96,50 91,50 4F4F4F\n"
                         "dial: wide 2\n"
                         "dial: line 50,95 50,90 8F8F8F\n"
                         "dial: line 18,82 22,78 8F8F8F\n"
                         "dial: line 5,50 10,50 8F8F8F\n"
                         "dial: line 18,18 22,22 8F8F8F\n"
                         "dial: line 50,5 50,10 8F8F8F\n"
                         "dial: line 82,18 78,22 8F8F8F\n"
                         "dial: line 95,50 90,50 8F8F8F\n"
                         "sub: copy"),
            picture.npos)
      << picture;
}

TEST_F(CircleMonitorTest, AReadingStartsFromACleanDial) {
  start(0, 1000);
  take("+00900");
  EXPECT_EQ(show({"+00000", "+00333"}),
            "sub: copy dial 0,0 100x100 to 0,0\n"
            "sub: line 58,46 91,29 8000FF\n"
            "sub: line 50,59 50,96 FF8000\n"
            "sub: wide 2\n"
            "sub: line 41,50 18,50 0000FF\n"
            "sub: wide 1\n"
            "sub: line 18,50 4,50 0000FF\n"
            "sub: filled 72,69 82,74 2F2F2F\n"
            "wave: copy sub 0,0 100x100 to 0,0\n"
            "wave: refresh\n");
  EXPECT_EQ(show({"+00333"}), "") << "would look the same";
  EXPECT_EQ(show({"------", "ABCDEF"}), "");
  drawEmpty();
  EXPECT_NE(show({"+00333"}), "") << "the new dial has no needle yet";
  monitor.clear();
  EXPECT_EQ(monitor.extremes().max, vk::Extremes::kMaxStart);
  EXPECT_NE(show({"+00333"}), "");
}

TEST_F(CircleMonitorTest, ValuesBeyondTheScaleArePegged) {
  // A first reading leaves the minimum at its start, far above the scale.
  constexpr const char* kEnd = "line 59,50 82,50 0000FF\nline 82,50 96,50 0000FF\n";
  constexpr const char* kBottom = "line 50,59 50,82 0000FF\nline 50,82 50,96 0000FF\n";
  constexpr const char* kHigh = "filled 71,68 82,74 8000FF\n";
  constexpr const char* kLow = "filled 71,68 82,74 FF8000\n";
  constexpr const char* kOff = "filled 72,69 82,74 2F2F2F\n";
  const struct {
    const char* name;
    int32_t offset;
    float full;
    std::string_view reading;
    const char* mark;
    const char* needle;
    const char* lamp;
  } rows[] = {
      {"at the end", 0, 1000, "+01000", "line 59,50 96,50 8000FF\n", kEnd, kOff},
      {"just above", 0, 1000, "+01001", "line 59,50 96,50 00FFFF\n", kEnd, kHigh},
      {"at the start", 0, 1000, "+00000", "line 50,59 50,96 8000FF\n", kBottom, kOff},
      {"below", 0, 1000, "-00001", "line 50,59 50,96 00FFFF\n", kBottom, kLow},
      {"backward", 1000, -1000, "+00000", "line 50,59 50,96 00FFFF\n", kEnd, kHigh},
      {"no scale", 500, 500, "+00500", "line 50,59 50,96 8000FF\n", kBottom, kOff},
  };
  const std::string minimum = "line 59,50 96,50 00FFFF\n";
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    monitor.clear();
    start(row.offset, row.full);
    EXPECT_EQ(strokes({row.reading}), row.mark + minimum + row.needle + row.lamp);
  }
}

TEST_F(CircleMonitorTest, TheLabelSaysWhatTheLastReadingLeft) {
  start(0, 1000);
  std::string said;
  const auto say = [&] {
    const auto text = monitor.labels(0).value;
    said += text ? "[" + *text + "]" : "-";
  };
  for (const std::string_view reading : {"+00250", "+00250", "------", "+00250", "rubble"}) {
    take(reading);
    say();
  }
  for (const std::string_view reading : {"*", "*", "------", "*", "-00001", "*"}) {
    take(reading);
    say();
  }
  EXPECT_EQ(said, "[250]-[unused][250]-[---]-[unused]-[-1][---]") << "only a value connects again";
}

TEST_F(CircleMonitorTest, TinyPicturesAndStrangeRecordsDoNoHarm) {
  record.CRL_CH = 9;
  start(0, 1000);
  EXPECT_EQ(show({"+00250"}), "");
  record.CRL_CH = 1;
  using Single = std::numeric_limits<float>;
  for (const int side : {0, 1, 2, 8, 18, 20}) {
    for (const float full : {Single::infinity(), Single::quiet_NaN(), -Single::max()}) {
      size(side);
      start(std::numeric_limits<int32_t>::min(), full);
      drawEmpty();
      EXPECT_TRUE(show({"+00250", "-00250"}).ends_with("wave: refresh\n")) << side;
    }
  }
}

TEST(CircleScale, MiddleLabelsAreCutToTenCharacters) {
  const auto texts = [](int32_t offset, float full) {
    CircleMonitorRec record;
    record.CRL_OFFSET = offset;
    record.CRL_FULL = full;
    const auto scale = vk::circleScale(record);
    return scale.offset + "|" + scale.oneThird + "|" + scale.twoThirds + "|" + scale.full;
  };
  EXPECT_EQ(texts(0, 1000), "0|333.333333|666.666666|1000");
  EXPECT_EQ(texts(-10000, 20000), "-10000|0|10000|20000");
  EXPECT_EQ(texts(0, 0.5F), "0|0.16666666|0.33333333|0.5");
}

}  // namespace
}  // namespace vktest
