// SPDX-License-Identifier: MIT
#include "monitors/mdlCircleMonitor.h"

#include <gmock/gmock.h>

#include <limits>
#include <tuple>

#include "tests/monitors/logic_test.h"

namespace vk {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class CircleMonitorTest : public vktest::MonitorLogicTest<CircleMonitor, CircleMonitorRec> {
 protected:
  CircleMonitorTest() {
    monitor.setColours({0xAAAAAA, 0xBBBBBB});
    start(100, 0, 1000);
    said();
  }
  void start(int side, int32_t offset, float full) {
    record.CRL_OFFSET = offset;
    record.CRL_FULL = full;
    init(side, side);
  }
  /// What the readings draw, shown once after all of them.
  template <typename... Readings>
  std::string show(Readings... readings) {
    frame();
    (take(readings), ...);
    return frame();
  }
};

// Ticks run clockwise from the bottom to the right.
TEST_F(CircleMonitorTest, TheDialHasFaceHubAndLampUnderItsTicks) {
  const auto picture = frame();
  EXPECT_THAT(picture, StartsWith("shown: clear AAAAAA\nextra: filled 0,0 99,99 AAAAAA\n"
                                  "extra: disc 50,50 r46 2F2F2F\nextra: wide 1\n"
                                  "extra: circle 50,50 r48 808080\n"
                                  "extra: arc 50,50 r9 40..240 BBBBBB\n"
                                  "extra: arc 50,50 r9 240..40 808080\n"
                                  "extra: box 70,67 83,75 808080\n"
                                  "extra: line 83,67 83,75 BBBBBB\n"
                                  "extra: line 70,75 84,75 BBBBBB\n"
                                  "extra: line 50,96 50,91 4F4F4F\n"
                                  "extra: line 43,95 44,90 4F4F4F\n"));
  EXPECT_THAT(picture, HasSubstr("extra: line 96,50 91,50 4F4F4F\nextra: wide 2\n"
                                 "extra: line 50,95 50,90 8F8F8F\n"
                                 "extra: line 18,82 22,78 8F8F8F\n"));
  EXPECT_THAT(picture, ::testing::EndsWith("extra: line 95,50 90,50 8F8F8F\n"
                                           "twin: copy extra 0,0 100x100 to 0,0\n"
                                           "shown: copy twin 0,0 100x100 to 0,0\n"
                                           "shown: refresh\n"));
}

TEST_F(CircleMonitorTest, AReadingStartsFromACleanDial) {
  take("+00900");
  EXPECT_EQ(show("+00000", "+00333"),
            "twin: copy extra 0,0 100x100 to 0,0\n"
            "twin: line 58,46 91,29 8000FF\ntwin: line 50,59 50,96 FF8000\ntwin: wide 2\n"
            "twin: line 41,50 18,50 0000FF\ntwin: wide 1\ntwin: line 18,50 4,50 0000FF\n"
            "twin: filled 72,69 82,74 2F2F2F\n"
            "shown: copy twin 0,0 100x100 to 0,0\nshown: refresh\n");
  EXPECT_EQ(show("+00333"), "") << "would look the same";
  EXPECT_EQ(show("------", "ABCDEF"), "");
  monitor.resize(100, 100);
  EXPECT_NE(show("+00333"), "") << "the new dial has no needle yet";
  monitor.clear();
  EXPECT_EQ(monitor.extremes().max, Extremes::kMaxStart);
  EXPECT_NE(show("+00333"), "");
}

TEST_F(CircleMonitorTest, ValuesBeyondTheScaleArePegged) {
  // Ends and colours of the marks, of the needle's two parts and of the lamp. A first reading
  // leaves the minimum at its start, far above the scale.
  const std::string high = "96,50 00FFFF|";
  const std::string right = "82,50 0000FF|96,50 0000FF|";
  const std::string down = "50,82 0000FF|50,96 0000FF|";
  const std::tuple<int32_t, float, const char*, std::string> rows[] = {
      {0, 1000, "+01000", "96,50 8000FF|" + high + right + "72,69 82,74 2F2F2F|"},
      {0, 1000, "+01001", "96,50 00FFFF|" + high + right + "71,68 82,74 8000FF|"},
      {0, 1000, "+00000", "50,96 8000FF|" + high + down + "72,69 82,74 2F2F2F|"},
      {0, 1000, "-00001", "50,96 00FFFF|" + high + down + "71,68 82,74 FF8000|"},
      {1000, -1000, "+00000", "50,96 00FFFF|" + high + right + "71,68 82,74 8000FF|"},  // backward
      {500, 500, "+00500", "50,96 8000FF|" + high + down + "72,69 82,74 2F2F2F|"},
  };
  for (const auto& [offset, full, reading, expected] : rows) {
    monitor.clear();
    start(100, offset, full);
    std::string strokes;
    std::istringstream lines(show(reading));
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("twin: line")) strokes += line.substr(line.rfind(',') - 2) + "|";
      if (line.starts_with("twin: filled")) strokes += line.substr(13) + "|";
    }
    EXPECT_EQ(strokes, expected) << reading;
  }
}

TEST_F(CircleMonitorTest, TheLabelSaysWhatTheLastReadingLeft) {
  std::string all;
  for (const char* reading :
       {"+00250", "+00250", "------", "+00250", "rubble", "*", "*", "------", "*", "-00001", "*"}) {
    take(reading);
    all += said() + " ";
  }
  EXPECT_EQ(all, "250  unused 250  ---[]  unused  -1 ---[] ") << "only a value connects again";
}

TEST_F(CircleMonitorTest, TinyPicturesAndStrangeRecordsDoNoHarm) {
  using Single = std::numeric_limits<float>;
  for (const int side : {0, 1, 2, 8, 18, 20}) {
    for (const float full : {Single::infinity(), Single::quiet_NaN(), -Single::max()}) {
      start(side, std::numeric_limits<int32_t>::min(), full);
      EXPECT_THAT(show("+00250", "-00250"), ::testing::EndsWith("shown: refresh\n")) << side;
    }
  }
  record.CRL_CH = 9;
  EXPECT_EQ(show("+00300"), "");
}

TEST(CircleScale, MiddleLabelsAreCutToTenCharacters) {
  const auto texts = [](int32_t offset, float full) {
    CircleMonitorRec record;
    record.CRL_OFFSET = offset;
    record.CRL_FULL = full;
    const auto scale = circleScale(record);
    return scale.offset + "|" + scale.oneThird + "|" + scale.twoThirds + "|" + scale.full;
  };
  EXPECT_EQ(texts(0, 1000), "0|333.333333|666.666666|1000");
  EXPECT_EQ(texts(-10000, 20000), "-10000|0|10000|20000");
  EXPECT_EQ(texts(0, 0.5F), "0|0.16666666|0.33333333|0.5");
}

}  // namespace
}  // namespace vk
