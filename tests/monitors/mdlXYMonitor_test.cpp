// SPDX-License-Identifier: MIT
#include "monitors/mdlXYMonitor.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "recorder/mdlBoxTable.h"
#include "tests/support/recording_picture.h"

namespace vk {
namespace {

using vktest::RecordingPicture;

class XYMonitorTest : public ::testing::Test {
 protected:
  static constexpr int kSize = 404;

  XYMonitorTest() {
    resetBoxTable();
    record.XY_CH = {1, 2};
    init({1, 1});
    take("+00000", "+00000");
    labels();
    show();
  }
  ~XYMonitorTest() override { resetBoxTable(); }

  void init(std::array<int32_t, kXYAxes> slots) {
    monitor.init(slots);
    monitor.resize(kSize, kSize);
  }
  void take(std::string_view y, std::string_view x) {
    const std::array readings{y, x};
    monitor.take(readings);
  }
  /// What was drawn, without the grid's sixteen lines.
  std::string show() {
    monitor.show({wave, sub});
    std::string text;
    std::istringstream all(wave.take());
    for (std::string line; std::getline(all, line);) {
      if (line.find(" 4F4F4F") == std::string::npos) text += line + "\n";
    }
    return text;
  }
  /// "Y value Y unit|X value X unit", "=" for a text that stays.
  std::string labels() {
    const auto axis = [this](std::size_t i) {
      const auto said = monitor.labels(i);
      return said.value.value_or("=") + " " + said.unit.value_or("=");
    };
    const std::string y = axis(0);
    return y + "|" + axis(1);
  }

  XYMonitorRec record;
  XYMonitor monitor{record};
  std::string log;
  RecordingPicture wave{"wave", kSize, kSize, log};
  RecordingPicture sub{"sub", kSize, kSize, log};
};

const std::string kOverlays =
    "wave: dotted\n"
    "wave: solid\n"
    "wave: dotted\n"
    "wave: line 0,202 404,202 8F8F8F\n"
    "wave: line 202,0 202,404 8F8F8F\n"
    "wave: solid\n"
    "wave: refresh\n";

TEST_F(XYMonitorTest, TheLineGrowsInTheTwinAndIsCopied) {
  EXPECT_EQ(show(), "") << "the first sample is a start only, and is shown";
  take("+01000", "-02000");
  EXPECT_EQ(show(),
            "sub: line 202,202 122,162 0000FF\n"
            "sub: point 122,162 0000FF\n"
            "wave: copy sub 0,0 404x404 to 0,0\n" +
                kOverlays);
  EXPECT_EQ(monitor.pointerX(), 122);
  EXPECT_EQ(monitor.pointerY(), 162);
  EXPECT_EQ(labels(), "1000 =|-2000 =");
  EXPECT_EQ(labels(), "= =|= =");
}

TEST_F(XYMonitorTest, TheGridHasTenDivisions) {
  monitor.resize(25, 11);
  wave.resize(25, 11);
  monitor.show({wave, sub});
  const std::string all = wave.take();
  // Ties go to the even column: 2.5, 5, 7.5 and 10 beside column 12.
  for (const char* line : {"line 10,0 10,11", "line 14,0 14,11", "line 17,0 17,11", "line 4,0 4,11",
                           "line 2,0 2,11", "line 0,5 25,5", "line 0,2 25,2"})
    EXPECT_NE(all.find(std::string("wave: ") + line + " 4F4F4F\n"), std::string::npos) << line;
}

TEST_F(XYMonitorTest, AShiftedAxisJumpsWithTheNextSample) {
  monitor.moveGround(0, 2);
  EXPECT_EQ(record.XY_OFFSET[0], 2);
  EXPECT_EQ(monitor.offsetText(0), "1000");
  EXPECT_EQ(monitor.scaleText(0), "1000ue/div");
  EXPECT_EQ(show(), "");
  take("+00000", "+00000");
  EXPECT_EQ(show().substr(0, 33), "sub: line 202,202 202,242 0000FF\n");
}

struct State {
  const char* y;
  const char* x;
  const char* labels;
  const char* line;  ///< into the twin, from the centre
  bool pointer;
};

TEST_F(XYMonitorTest, WhatOneReadingShows) {
  const State states[] = {
      {"+01000", "------", "1000 =|unused =", "202,162", true},
      {"------", "+01000", "unused =|1000 =", "242,202", true},
      {"OVER  ", "+01000", "error =|1000 =", "242,202", true},
      {"------", "------", "unused =|unused =", "202,202", true},
      {"+01000", "*", "1000 =|--- ", "", false},
      {"*", "------", "--- |unused =", "", false},
      {"*", "*", "--- |--- ", "", true},  // it stays where it was
      {"+01000", "", "1000 =|error =", "202,162", true},
  };
  for (const auto& state : states) {
    SCOPED_TRACE(std::string(state.y) + " against " + state.x);
    init({1, 1});
    take("+00000", "+00000");
    show();
    labels();
    take(state.y, state.x);
    const std::string line = *state.line ? std::string("sub: line 202,202 ") + state.line +
                                               " 0000FF\nsub: point " + state.line +
                                               " 0000FF\nwave: copy sub 0,0 404x404 to 0,0\n"
                                         : "";
    EXPECT_EQ(show(), line + kOverlays);
    EXPECT_EQ(labels(), state.labels);
    EXPECT_EQ(monitor.pointerVisible(), state.pointer);
  }
}

TEST_F(XYMonitorTest, ALostBoxIsShownOnce) {
  take("*", "+01000");
  EXPECT_EQ(show(), kOverlays);
  labels();
  take("*", "+02000");
  EXPECT_EQ(show(), "");
  take("*", "*");
  take("*", "*");
  EXPECT_EQ(show(), kOverlays);
  EXPECT_EQ(labels(), "= |--- ");
  monitor.lose();
  EXPECT_EQ(show() + labels(), "= =|= =");
  monitor.reloadUnit(1);
  EXPECT_EQ(labels(), "= =|= ue");
  EXPECT_EQ(monitor.extremes(1).max, 2000);
}

TEST_F(XYMonitorTest, ClearAndResizeEmptyTheLine) {
  monitor.clear();
  EXPECT_EQ(show(), "sub: clear 2F2F2F\n") << "the plot empties with the next sample";
  monitor.resize(kSize, kSize);
  EXPECT_EQ(show(), "sub: clear 2F2F2F\nwave: clear 2F2F2F\n" + kOverlays);
  take("+01000", "+01000");
  EXPECT_EQ(show(), "") << "no line from a point of the old size";
}

TEST_F(XYMonitorTest, AGroundFarOffStaysBelowAndRightOfThePlot) {
  record.XY_OFFSET.fill(std::numeric_limits<int32_t>::max());
  init({1, 1});
  take("+00000", "+00000");
  EXPECT_EQ(monitor.pointerX(), 1000000);
  EXPECT_EQ(monitor.pointerY(), 1000000);
}

TEST_F(XYMonitorTest, NonsenseFromAFileStaysOnNumbers) {
  record.XY_FULL = {0, std::numeric_limits<float>::quiet_NaN()};
  record.XY_OFFSET = {std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::min()};
  record.XY_CH = {1, 77};
  init({1, 9});
  take("+01000", "+01000");
  take("-01000", "+01000");
  EXPECT_NE(show().find("line 202,202 202,202 0000FF"), std::string::npos);
  EXPECT_EQ(labels(), "-1000 ue|error ");
}

}  // namespace
}  // namespace vk
