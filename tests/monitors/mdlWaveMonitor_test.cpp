// SPDX-License-Identifier: MIT
#include "monitors/mdlWaveMonitor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>

#include "recorder/mdlBoxTable.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/recording_picture.h"

namespace vk {
namespace {

class WaveMonitorTest : public ::testing::Test {
 protected:
  static constexpr int kWidth = 500;
  static constexpr int kHeight = 404;

  WaveMonitorTest() {
    resetBoxTable();
    record.WAV_SPEED = 6;  // ten seconds to a screen
    init(1, kWidth, kHeight);
    shown();
    said();
  }
  ~WaveMonitorTest() override { resetBoxTable(); }

  void init(int32_t slot, int width, int height) {
    monitor.init({&slot, 1});
    monitor.resize(width, height);
  }
  /// The labels of value and unit, "=" for one that stays.
  std::string said() {
    const auto labels = monitor.labels(0);
    return labels.value.value_or("=") + " " + labels.unit.value_or("=");
  }
  void take(std::string_view reading, int64_t after = 50) {
    desk.clock += after;
    monitor.take({&reading, 1});
  }
  /// What the next frame does, without the grid, which never changes.
  std::string shown() {
    monitor.show({wave, sub, &marks});
    std::string kept;
    std::istringstream lines(wave.take());
    for (std::string line; std::getline(lines, line);) {
      if (line.find("4F4F4F") == std::string::npos && line.find("8F8F8F") == std::string::npos &&
          line.find("dotted") == std::string::npos && line.find("solid") == std::string::npos)
        kept += line + "\n";
    }
    return kept;
  }
  /// Columns per sample, told by where the strokes end.
  std::string steps(int samples, int64_t after) {
    std::string text;
    for (int i = 0; i < samples; ++i) {
      take("000000", after);
      const std::string ops = shown();
      const auto at = ops.find("copy sub ");
      text += at == std::string::npos ? "0" : ops.substr(at + 9, ops.find(',', at) - at - 9);
    }
    return text;
  }

  vktest::FakeDesktop desk;
  std::string log;
  vktest::RecordingPicture wave{"wave", kWidth, kHeight, log};
  vktest::RecordingPicture sub{"sub", kWidth, kHeight, log};
  vktest::RecordingPicture marks{"marks", 10, kHeight, log};
  WaveMonitorRec record;
  WaveMonitor monitor{record};
};

TEST_F(WaveMonitorTest, OneSampleADrawnFrame) {
  take("002000");
  EXPECT_EQ(shown(),
            "marks: line 0,122 10,122 8000FF\n"
            "marks: line 0,0 10,0 00FFFF\n"
            "marks: refresh\n");
  take("001000", 60);
  EXPECT_EQ(shown(),
            "marks: line 0,122 10,122 8000FF\n"
            "marks: line 0,162 10,162 FF8000\n"
            "marks: refresh\n"
            "sub: copy sub 3,0 500x404 to 0,0\n"
            "sub: filled 497,0 499,404 2F2F2F\n"
            "sub: line 497,122 499,162 0000FF\n"
            "sub: point 499,162 0000FF\n"
            "wave: copy sub 0,0 500x404 to 0,0\n"
            "wave: refresh\n");
  EXPECT_EQ(said(), "1000 =");
  EXPECT_EQ(said(), "= =");
  take("001500", 1);
  EXPECT_EQ(shown(), "");
}

TEST_F(WaveMonitorTest, GridAndCrossLieOverTheTrace) {
  wave.resize(100, 60);
  monitor.resize(100, 60);
  monitor.show({wave, sub, &marks});
  EXPECT_EQ(wave.take(),
            "sub: clear 2F2F2F\nmarks: clear 2F2F2F\n"
            "marks: line 0,59 10,59 00FFFF\nmarks: line 0,0 10,0 00FFFF\nmarks: refresh\n"
            "wave: clear 2F2F2F\nwave: dotted\n"
            "wave: line 40,0 40,60 4F4F4F\nwave: line 60,0 60,60 4F4F4F\n"
            "wave: line 30,0 30,60 4F4F4F\nwave: line 70,0 70,60 4F4F4F\n"
            "wave: line 20,0 20,60 4F4F4F\nwave: line 80,0 80,60 4F4F4F\n"
            "wave: line 10,0 10,60 4F4F4F\nwave: line 90,0 90,60 4F4F4F\n"
            "wave: line 0,24 100,24 4F4F4F\nwave: line 0,36 100,36 4F4F4F\n"
            "wave: line 0,18 100,18 4F4F4F\nwave: line 0,42 100,42 4F4F4F\n"
            "wave: line 0,12 100,12 4F4F4F\nwave: line 0,48 100,48 4F4F4F\n"
            "wave: line 0,6 100,6 4F4F4F\nwave: line 0,54 100,54 4F4F4F\n"
            "wave: solid\nwave: dotted\n"
            "wave: line 0,30 100,30 8F8F8F\nwave: line 50,0 50,60 8F8F8F\n"
            "wave: solid\nwave: refresh\n");
}

TEST_F(WaveMonitorTest, FractionsOfAColumnAreCarried) {
  take("000000", 0);
  EXPECT_EQ(steps(7, 50), "2232323");
  EXPECT_EQ(steps(20, 2), "00001000000000100000");
}

TEST_F(WaveMonitorTest, SamplesOfAFrameScrollTogether) {
  take("000000", 0);
  shown();
  take("001000", 60);
  take("-01000", 40);
  take("-00500", 5);
  EXPECT_NE(shown().find("sub: copy sub 5,0 500x404 to 0,0\n"
                         "sub: filled 495,0 499,404 2F2F2F\n"
                         "sub: line 495,202 497,162 0000FF\n"
                         "sub: point 497,162 0000FF\n"
                         "sub: line 498,162 499,242 0000FF\n"
                         "sub: point 499,242 0000FF\n"
                         "wave: copy"),
            std::string::npos);
  for (int i = 0; i < 3000; ++i) take("000000", 20);
  const std::string all = shown();
  EXPECT_EQ(all.substr(0, all.find("\nsub: line")),
            "sub: copy sub 500,0 500x404 to 0,0\nsub: filled 0,0 499,404 2F2F2F");
  EXPECT_EQ(std::ranges::count(all, '\n'), 2 * kWidth + 4);
}

TEST_F(WaveMonitorTest, PauseDropsReadingsAndLeavesNoGap) {
  take("000100", 0);
  monitor.setPaused(true);
  take("009999", 60000);
  monitor.setPaused(false);
  EXPECT_EQ(said(), "100 =");
  EXPECT_EQ(monitor.extremes().max, 100);
  EXPECT_EQ(steps(1, 60), "3");
}

TEST_F(WaveMonitorTest, UnusedLeavesTheTraceAndWipesTheMarks) {
  take("000100");
  take("------");
  EXPECT_EQ(shown(), "marks: clear 2F2F2F\nmarks: refresh\nwave: refresh\n");
  EXPECT_EQ(said(), "unused =");
  take("------");
  take("E");
  EXPECT_EQ(shown(), "");
  monitor.lose();
  monitor.lose();
  EXPECT_EQ(said(), "--- ");
  EXPECT_EQ(shown(), "wave: refresh\n");
  take("*");
  EXPECT_EQ(said() + shown(), "= =") << "told once";
}

TEST_F(WaveMonitorTest, ClearWipesTraceAndExtremes) {
  take("000100");
  take("000200");
  monitor.clear();
  EXPECT_EQ(shown(), "sub: clear 2F2F2F\nmarks: clear 2F2F2F\nmarks: refresh\n");
  EXPECT_EQ(monitor.extremes().max, Extremes::kMaxStart);
}

TEST_F(WaveMonitorTest, GroundLevelMovesNewSamplesOnly) {
  monitor.moveGround(2);
  EXPECT_EQ(record.WAV_OFFSET, 2);
  EXPECT_EQ(monitor.offsetText(), "1000");
  take("000000");
  take("000000", 20);
  EXPECT_NE(shown().find("point 499,242"), std::string::npos);
}

TEST_F(WaveMonitorTest, OffsetCancelTakesTheMeanOfTwentyReadings) {
  const struct {
    int16_t range;
    int16_t carrier;
    float coeff;
    int32_t shift;
  } rows[] = {{4, 2, 1, 40}, {8, 2, 1, 4}, {4, 1, 0.5F, 80}, {23, 1, 2, 32}, {12, 2, -1, -40}};
  for (const auto& row : rows) {
    gBoxTable[1].range[1] = row.range;
    gBoxTable[1].carrier[1] = row.carrier;
    gBoxTable[1].coeff[1] = row.coeff;
    monitor.setOffsetCancel(true);
    for (int i = 0; i < 19; ++i) take("001000");
    EXPECT_EQ(monitor.cancelOffsetPx(), 0);
    take("001000");
    EXPECT_EQ(monitor.cancelOffsetPx(), row.shift) << row.range;
  }
  EXPECT_TRUE(record.WAV_CUP_ON);
  EXPECT_EQ(record.WAV_CUP_VALUE, 0);
  monitor.setOffsetCancel(false);
  EXPECT_EQ(monitor.cancelOffsetPx(), 0);
  // Steps on the way may be far larger than every picture.
  record.WAV_FULL = 0.2F;
  gBoxTable[1].coeff[1] = 0.0001F;
  monitor.resize(kWidth, kHeight);
  monitor.setOffsetCancel(true);
  for (int i = 0; i < 20; ++i) take("+20000");
  EXPECT_EQ(monitor.cancelOffsetPx(), 400);
}

TEST_F(WaveMonitorTest, StoredOffsetHoldsUntilTheMeasurementIsComplete) {
  record.WAV_CUP_ON = true;
  record.WAV_CUP_VALUE = 7;
  init(1, kWidth, kHeight);
  EXPECT_EQ(monitor.cancelOffsetPx(), 7);
  for (int i = 0; i < 20; ++i) take("001000");
  EXPECT_EQ(monitor.cancelOffsetPx(), 40);
  // Set in the dialog is a fresh start.
  init(1, kWidth, kHeight);
  EXPECT_EQ(monitor.cancelOffsetPx(), 7);
  for (int i = 0; i < 20; ++i) take("002000");
  EXPECT_EQ(monitor.cancelOffsetPx(), 80);
}

TEST_F(WaveMonitorTest, NonsenseOfAFileIsHarmless) {
  record.WAV_SPEED = -3;
  record.WAV_FULL = 0;
  record.WAV_CUP_ON = true;
  record.WAV_CUP_VALUE = std::numeric_limits<float>::quiet_NaN();
  record.WAV_OFFSET = std::numeric_limits<int32_t>::max();
  init(1, 0, -5);
  EXPECT_EQ(monitor.xScaleText(), "X:10msec/div");
  EXPECT_EQ(monitor.yScaleText(), "Y:0ue/div");
  for (int i = 0; i < 25; ++i) take("1E+037", 4000000000);
  EXPECT_NE(shown().find("sub: line"), std::string::npos);
  record.WAV_CH = 9;
  init(77, kWidth, kHeight);
  take("000001");
  EXPECT_EQ(monitor.yScaleText(), "Y:0/div");
}

}  // namespace
}  // namespace vk
