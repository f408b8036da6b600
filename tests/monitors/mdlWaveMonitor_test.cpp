// SPDX-License-Identifier: MIT
#include "monitors/mdlWaveMonitor.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <tuple>

#include "tests/monitors/logic_test.h"

namespace vk {
namespace {

using ::testing::HasSubstr;

constexpr int kWidth = 500;
constexpr int kHeight = 404;

class WaveMonitorTest : public vktest::MonitorLogicTest<WaveMonitor, WaveMonitorRec> {
 protected:
  WaveMonitorTest() {
    record.WAV_SPEED = 6;  // ten seconds to a screen
    init(kWidth, kHeight);
    drawn();
    said();
  }
  void take(std::string_view reading, int64_t after = 50) {
    desk.clock += after;
    MonitorLogicTest::take(reading);
  }
  void take(int times, std::string_view reading) {
    for (int i = 0; i < times; ++i) take(reading);
  }
  /// Columns per sample, told by where the strokes end.
  std::string steps(int samples, int64_t after) {
    std::string text;
    for (int i = 0; i < samples; ++i) {
      take("000000", after);
      const std::string all = drawn();
      const auto at = all.find("copy twin ");
      text += at == std::string::npos ? "0" : all.substr(at + 10, all.find(',', at) - at - 10);
    }
    return text;
  }
};

TEST_F(WaveMonitorTest, OneSampleADrawnFrame) {
  init(kWidth, kHeight);
  EXPECT_EQ(drawn(),
            "twin: clear 2F2F2F\nextra: clear 2F2F2F\nextra: line 0,403 500,403 00FFFF\n"
            "extra: line 0,0 500,0 00FFFF\nextra: refresh\nshown: clear 2F2F2F\n"
            "shown: refresh\n");
  take("002000");
  EXPECT_EQ(drawn(),
            "extra: line 0,122 500,122 8000FF\nextra: line 0,0 500,0 00FFFF\nextra: refresh\n");
  take("001000", 60);
  EXPECT_EQ(drawn(),
            "extra: line 0,122 500,122 8000FF\nextra: line 0,162 500,162 FF8000\n"
            "extra: refresh\n"
            "twin: copy twin 3,0 500x404 to 0,0\ntwin: filled 497,0 499,404 2F2F2F\n"
            "twin: line 497,122 499,162 0000FF\ntwin: point 499,162 0000FF\n"
            "shown: copy twin 0,0 500x404 to 0,0\nshown: refresh\n");
  EXPECT_EQ(said(), "1000[ue]");
  take("001500", 1);
  EXPECT_EQ(drawn(), "");
}

TEST_F(WaveMonitorTest, FractionsOfAColumnAreCarried) {
  take("000000", 0);
  EXPECT_EQ(steps(7, 50), "2232323");
  EXPECT_EQ(steps(20, 2), "00001000000000100000");
}

TEST_F(WaveMonitorTest, SamplesOfAFrameScrollTogether) {
  take("000000", 0);
  drawn();
  take("001000", 60);
  take("-01000", 40);
  take("-00500", 5);
  EXPECT_THAT(drawn(),
              HasSubstr("twin: copy twin 5,0 500x404 to 0,0\ntwin: filled 495,0 499,404 2F2F2F\n"
                        "twin: line 495,202 497,162 0000FF\ntwin: point 497,162 0000FF\n"
                        "twin: line 498,162 499,242 0000FF\ntwin: point 499,242 0000FF\n"));
  for (int i = 0; i < 3000; ++i) take("000000", 20);
  const std::string all = drawn();
  EXPECT_THAT(all, ::testing::StartsWith("twin: copy twin 500,0 500x404 to 0,0\n"
                                         "twin: filled 0,0 499,404 2F2F2F\n"));
  EXPECT_EQ(std::ranges::count(all, '\n'), 2 * kWidth + 4);
}

TEST_F(WaveMonitorTest, PauseDropsReadingsAndLeavesNoGap) {
  take("000100", 0);
  monitor.setPaused(true);
  take("009999", 60000);
  monitor.setPaused(false);
  EXPECT_EQ(said(), "100");
  EXPECT_EQ(monitor.extremes().max, 100);
  EXPECT_EQ(steps(1, 60), "3");
}

TEST_F(WaveMonitorTest, UnusedAndClearWipe) {
  take(1, "000100");
  take(1, "------");
  EXPECT_EQ(drawn(), "extra: clear 2F2F2F\nextra: refresh\nshown: refresh\n") << "marks only";
  EXPECT_EQ(said(), "unused");
  take(1, "------");
  take(1, "E");
  EXPECT_EQ(drawn(), "");
  monitor.lose();
  EXPECT_EQ(said(), "---[]");
  EXPECT_EQ(drawn(), "shown: refresh\n");
  take(2, "000200");
  monitor.clear();
  EXPECT_EQ(drawn(), "twin: clear 2F2F2F\nextra: clear 2F2F2F\nextra: refresh\n");
  EXPECT_EQ(monitor.extremes().max, Extremes::kMaxStart);
}

TEST_F(WaveMonitorTest, GroundLevelMovesNewSamplesOnly) {
  monitor.moveGround(2);
  EXPECT_EQ(record.WAV_OFFSET, 2);
  EXPECT_EQ(monitor.offsetText(), "1000");
  take(2, "000000");
  EXPECT_THAT(drawn(), HasSubstr("point 499,242"));
}

TEST_F(WaveMonitorTest, OffsetCancelTakesTheMeanOfTwentyReadings) {
  const std::tuple<int16_t, int16_t, float, int32_t> rows[] = {
      {4, 2, 1, 40}, {8, 2, 1, 4}, {4, 1, 0.5F, 80}, {23, 1, 2, 32}, {12, 2, -1, -40}};
  for (const auto& [range, carrier, coeff, shift] : rows) {
    gBoxTable[1].range[1] = range;
    gBoxTable[1].carrier[1] = carrier;
    gBoxTable[1].coeff[1] = coeff;
    monitor.setOffsetCancel(true);
    take(10, "000500");
    take(9, "001500");
    EXPECT_EQ(monitor.cancelOffsetPx(), 0);
    take(1, "001500");
    EXPECT_EQ(monitor.cancelOffsetPx(), shift) << range;
  }
  EXPECT_TRUE(record.WAV_CUP_ON && record.WAV_CUP_VALUE == 0);
  monitor.setOffsetCancel(false);
  EXPECT_EQ(monitor.cancelOffsetPx(), 0);
  // Steps on the way may be far larger than every picture.
  record.WAV_FULL = 0.2F;
  gBoxTable[1].coeff[1] = 0.0001F;
  monitor.resize(kWidth, kHeight);
  monitor.setOffsetCancel(true);
  take(20, "+20000");
  EXPECT_EQ(monitor.cancelOffsetPx(), 400);
}

TEST_F(WaveMonitorTest, StoredOffsetHoldsUntilTheMeasurementIsComplete) {
  record.WAV_CUP_ON = true;
  record.WAV_CUP_VALUE = 7;
  // Set in the dialog is a fresh start.
  for (const auto& [reading, shift] : {std::pair{"001000", 40}, {"002000", 80}}) {
    init(kWidth, kHeight);
    take(19, reading);
    EXPECT_EQ(monitor.cancelOffsetPx(), 7);
    take(1, reading);
    EXPECT_EQ(monitor.cancelOffsetPx(), shift);
  }
}

TEST_F(WaveMonitorTest, NonsenseOfAFileIsHarmless) {
  record.WAV_SPEED = -3;
  record.WAV_FULL = 0;
  record.WAV_CUP_ON = true;
  record.WAV_CUP_VALUE = std::numeric_limits<float>::quiet_NaN();
  record.WAV_OFFSET = std::numeric_limits<int32_t>::max();
  init(0, -5);
  EXPECT_EQ(monitor.xScaleText() + monitor.yScaleText(), "X:10msec/divY:0ue/div");
  for (int i = 0; i < 25; ++i) take("1E+037", 4000000000);
  EXPECT_THAT(drawn(), HasSubstr("twin: line"));
  record.WAV_CH = 9;
  init(kWidth, kHeight, {77});
  take(1, "000001");
  EXPECT_EQ(monitor.yScaleText(), "Y:0/div");
}

}  // namespace
}  // namespace vk
