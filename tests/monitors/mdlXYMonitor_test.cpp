// SPDX-License-Identifier: MIT
#include "monitors/mdlXYMonitor.h"

#include <gmock/gmock.h>

#include <limits>
#include <tuple>

#include "tests/monitors/logic_test.h"

namespace vk {
namespace {

using Limits = std::numeric_limits<int32_t>;

constexpr int kSize = 404;

class XYMonitorTest : public vktest::MonitorLogicTest<XYMonitor, XYMonitorRec, kXYAxes> {
 protected:
  XYMonitorTest() {
    record.XY_CH = {1, 2};
    start();
  }
  /// The pointer in the middle of an empty plot.
  void start() {
    init(kSize, kSize);
    take("+00000", "+00000");
    drawn();
    said();
  }
};

constexpr const char* kOverlays = "shown: refresh\n";

TEST_F(XYMonitorTest, TheLineGrowsInTheTwinAndIsCopied) {
  take("+01000", "-02000");
  EXPECT_EQ(drawn(),
            "twin: line 202,202 122,162 0000FF\ntwin: point 122,162 0000FF\n"
            "shown: copy twin 0,0 404x404 to 0,0\nshown: refresh\n");
  EXPECT_TRUE(monitor.pointerX() == 122 && monitor.pointerY() == 162);
  EXPECT_EQ(said(), "1000|-2000");
  take("+01000", "-02000");
  EXPECT_EQ(drawn(), "") << "a point that stays";
}

TEST_F(XYMonitorTest, AShiftedAxisJumpsWithTheNextSample) {
  record.XY_FULL = {1000, 500};
  start();
  monitor.moveGround(0, 2);
  monitor.moveGround(1, 3);
  EXPECT_EQ(record.XY_OFFSET, (std::array{2, 3}));
  EXPECT_EQ(monitor.offsetText(0) + " " + monitor.offsetText(1), "1000 750");
  EXPECT_EQ(monitor.scaleText(0) + " " + monitor.scaleText(1), "1000ue/div 500ue/div");
  EXPECT_EQ(drawn(), "");
  take("+00000", "+00500");
  EXPECT_THAT(drawn(), ::testing::StartsWith("twin: line 202,202 302,242 0000FF\n"));
}

TEST_F(XYMonitorTest, WhatOneReadingShows) {
  // The line leads from the centre; without one the pointer is seen only where it stays.
  const std::tuple<std::string, const char*, const char*, std::string, bool> states[] = {
      {"+01000", "------", "1000|unused", "202,162", true},
      {"------", "+01000", "unused|1000", "242,202", true},
      {"OVER  ", "+01000", "error|1000", "242,202", true},
      {"------", "------", "unused|unused", "202,202", true},
      {"+01000", "*", "1000|---[]", "", false},
      {"*", "------", "---[]|unused", "", false},
      {"*", "*", "---[]|---[]", "", true},  // it stays where it was
      {"+01000", "", "1000|error", "202,162", true},
  };
  for (const auto& [y, x, labels, line, pointer] : states) {
    SCOPED_TRACE(y + " against " + x);
    start();
    take(y, x);
    const std::string end = line + " 0000FF\n";
    EXPECT_EQ(drawn(), !line.empty() ? "twin: line 202,202 " + end + "twin: point " + end +
                                           "shown: copy twin 0,0 404x404 to 0,0\n" + kOverlays
                                     : kOverlays);
    EXPECT_EQ(said(), labels);
    EXPECT_EQ(monitor.pointerVisible(), pointer);
  }
}

TEST_F(XYMonitorTest, ALostBoxIsShownOnce) {
  take("*", "+01000");
  EXPECT_EQ(drawn(), kOverlays);
  take("*", "+02000");
  EXPECT_EQ(drawn(), "");
  EXPECT_EQ(said(), "---[]|2000");
  take("*", "*");
  EXPECT_EQ(drawn() + said(), std::string(kOverlays) + "[]|---[]");
  EXPECT_EQ(monitor.extremes(1).max, 2000);
}

TEST_F(XYMonitorTest, ClearAndResizeEmptyTheLine) {
  monitor.clear();
  EXPECT_EQ(drawn(), "twin: clear 2F2F2F\n") << "the plot empties with the next sample";
  monitor.resize(kSize, kSize);
  EXPECT_EQ(drawn(), "twin: clear 2F2F2F\nshown: clear 2F2F2F\nshown: refresh\n");
  take("+01000", "+01000");
  EXPECT_EQ(drawn(), "") << "no line from a point of the old size";
}

TEST_F(XYMonitorTest, NonsenseFromAFileStaysOnNumbers) {
  record.XY_OFFSET = {Limits::max(), Limits::min()};
  start();
  EXPECT_EQ(monitor.pointerX(), -1000000);
  EXPECT_EQ(monitor.pointerY(), 1000000);
  record.XY_FULL = {0, std::numeric_limits<float>::quiet_NaN()};
  record.XY_CH = {1, 77};
  init(kSize, kSize, {1, 9});
  take("+01000", "+01000");
  take("-01000", "+01000");
  EXPECT_THAT(drawn(), ::testing::HasSubstr("line 202,202 202,202 0000FF"));
  EXPECT_EQ(said(), "-1000[ue]|error[]");
}

}  // namespace
}  // namespace vk
