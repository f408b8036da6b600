// SPDX-License-Identifier: MIT
#include "monitors/mdlBarMonitor.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "recorder/mdlBoxTable.h"
#include "tests/support/recording_picture.h"

namespace vk {
namespace {

class BarMonitorTest : public ::testing::Test {
 protected:
  BarMonitorTest() {
    resetBoxTable();
    init({1, 1, 1, 1}, 210, 404);
    shown();
    texts();
  }
  ~BarMonitorTest() override { resetBoxTable(); }

  void init(std::array<int32_t, kBars> slots, int width, int height) {
    monitor.init(slots);
    monitor.resize(width, height);
  }
  void take(std::array<std::string_view, kBars> readings) { monitor.take(readings); }
  /// What the next frame does, without the grid, which never changes.
  std::string shown() {
    monitor.show({wave, sub});
    std::string kept;
    std::istringstream lines(wave.take());
    for (std::string line; std::getline(lines, line);) {
      if (line.find("4F4F4F") == std::string::npos && line.find("dotted") == std::string::npos &&
          line.find("solid") == std::string::npos)
        kept += line + "\n";
    }
    return kept;
  }
  /// The labels that change, and "!" where the unit goes.
  std::string texts() {
    std::string all;
    for (std::size_t i = 0; i < kBars; ++i) {
      const auto said = monitor.labels(i);
      all += said.value.value_or("=") + (said.unit == "" ? "!" : "") + " ";
    }
    return all;
  }

  std::string log;
  vktest::RecordingPicture wave{"wave", 210, 404, log};
  vktest::RecordingPicture sub{"sub", 210, 404, log};
  BarMonitorRec record;
  BarMonitor monitor{record};
};

TEST(BarEdges, TiesGoToTheEvenColumn) {
  const auto edges = barEdges(410);
  EXPECT_EQ(edges.left, (std::array{20, 118, 216, 314}));
  EXPECT_EQ(edges.right, (std::array{98, 196, 294, 392}));
}

TEST_F(BarMonitorTest, OnePassInAllStates) {
  record.BAR_FULL[1] = 500;
  record.BAR_FORE[1] = 0x00FF00;
  record.BAR_OFFSET.fill(2);
  init({1, 1, 1, 1}, 210, 404);
  take({"001000", "007000", "*", "------"});
  EXPECT_EQ(shown(),
            "sub: clear 2F2F2F\nwave: clear 2F2F2F\n"
            "sub: line 10,202 50,202 8000FF\n"
            "sub: line 10,0 50,0 00FFFF\n"
            "sub: filled 10,242 50,202 0000FF\n"
            "sub: line 60,0 100,0 00FFFF\n"
            "sub: line 60,0 100,0 00FFFF\n"
            "sub: filled 60,242 100,-318 00FF00\n"
            "sub: line 110,403 150,403 00FFFF\n"
            "sub: line 110,0 150,0 00FFFF\n"
            "sub: filled 110,242 150,242 0000FF\n"
            "wave: copy sub 0,0 210x404 to 0,0\n"
            "wave: line 0,242 210,242 8F8F8F\n"
            "wave: refresh\n");
  EXPECT_EQ(texts(), "1000 7000 ---! unused ");
  take({"001000", "007000", "*", "------"});
  EXPECT_NE(shown().find("sub: line 10,202 50,202 FF8000\n"), std::string::npos);
  take({"001000", "007000", "*", "------"});
  EXPECT_EQ(shown(), "");
  take({"000500", "007000", "*", "------"});
  EXPECT_NE(shown().find("sub: line 10,222 50,222 FF8000\n"), std::string::npos);
  EXPECT_EQ(texts(), "500 = = = ");
}

TEST_F(BarMonitorTest, GridSharesTheHeightInTenDivisions) {
  wave.resize(100, 44);
  monitor.resize(100, 44);
  monitor.show({wave, sub});
  EXPECT_EQ(wave.take(),
            "sub: clear 2F2F2F\nwave: clear 2F2F2F\nwave: dotted\n"
            "wave: line 0,22 100,22 4F4F4F\n"
            "wave: line 0,18 100,18 4F4F4F\nwave: line 0,26 100,26 4F4F4F\n"
            "wave: line 0,14 100,14 4F4F4F\nwave: line 0,30 100,30 4F4F4F\n"
            "wave: line 0,10 100,10 4F4F4F\nwave: line 0,34 100,34 4F4F4F\n"
            "wave: line 0,6 100,6 4F4F4F\nwave: line 0,38 100,38 4F4F4F\n"
            "wave: solid\nwave: line 0,22 100,22 8F8F8F\nwave: refresh\n");
}

TEST_F(BarMonitorTest, AllUnusedOrAllLostEndsInTheLostState) {
  constexpr std::string_view kUnused = "------";
  take({"000100", "000100", "000100", "000100"});
  shown();
  texts();
  take({kUnused, kUnused, kUnused, kUnused});
  EXPECT_EQ(texts(), "---! ---! ---! ---! ");
  EXPECT_EQ(shown(), "wave: line 0,202 210,202 8F8F8F\nwave: refresh\n");
  take({kUnused, kUnused, kUnused, kUnused});
  EXPECT_EQ(texts(), "unused unused unused unused ");
  take({"*", "*", "*", "*"});
  EXPECT_EQ(texts(), "= = = = ");
  take({"000100", "*", "*", "*"});
  EXPECT_EQ(texts(), "100 = = = ");
  EXPECT_NE(shown().find("wave: copy"), std::string::npos);
}

TEST_F(BarMonitorTest, UnusedAndLostTogetherStillDraw) {
  take({"------", "*", "------", "*"});
  EXPECT_EQ(texts(), "unused ---! unused ---! ");
  EXPECT_NE(shown().find("sub: filled 60,202 100,202"), std::string::npos);
}

TEST_F(BarMonitorTest, ClearAndSliderActWithTheNextReadings) {
  take({"001000", "*", "*", "*"});
  shown();
  monitor.clear();
  EXPECT_EQ(monitor.extremes(0).max, Extremes::kMaxStart);
  EXPECT_EQ(shown(), "sub: clear 2F2F2F\n");
  monitor.moveGround(-2);
  EXPECT_EQ(record.BAR_OFFSET, (std::array{-2, -2, -2, -2}));
  EXPECT_EQ(shown(), "");
  take({"001000", "*", "*", "*"});
  EXPECT_NE(shown().find("sub: filled 10,162 50,122"), std::string::npos);
}

TEST_F(BarMonitorTest, AGroundFarOffStaysBelowThePicture) {
  record.BAR_OFFSET.fill(std::numeric_limits<int32_t>::max());
  init({1, 1, 1, 1}, 210, 404);
  take({"001000", "*", "*", "*"});
  const std::string all = shown();
  EXPECT_NE(all.find("sub: filled 10,1000000 50,1000000"), std::string::npos) << all;
  EXPECT_NE(all.find("wave: line 0,1000000 210,1000000"), std::string::npos) << all;
}

TEST_F(BarMonitorTest, NonsenseOfAFileIsHarmless) {
  record.BAR_FULL = {0, std::numeric_limits<float>::quiet_NaN(), 1e-40F, -5};
  record.BAR_OFFSET.fill(std::numeric_limits<int32_t>::min());
  record.BAR_CH = {9, -1, 1, 1};
  init({1, 77, 1, -3}, -4, 0);
  take({"001000", "001000", "1E+038", "001000"});
  EXPECT_EQ(texts(), "---! ---! 1E+38 ---! ");
  EXPECT_NE(shown().find("wave: copy sub 0,0 1x1"), std::string::npos);
  EXPECT_EQ(monitor.scaleText(1).substr(monitor.scaleText(1).size() - 4), "/div");
}

}  // namespace
}  // namespace vk
