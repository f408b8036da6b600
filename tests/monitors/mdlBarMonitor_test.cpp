// SPDX-License-Identifier: MIT
#include "monitors/mdlBarMonitor.h"

#include <gmock/gmock.h>

#include <limits>

#include "tests/monitors/logic_test.h"

namespace vk {
namespace {

using ::testing::HasSubstr;

class BarMonitorTest : public vktest::MonitorLogicTest<BarMonitor, BarMonitorRec, kBars> {
 protected:
  BarMonitorTest() {
    record.BAR_GND = 0xABCDEF;
    init(210, 404);
    drawn();
    said();
  }
};

TEST(BarEdges, TiesGoToTheEvenColumn) {
  EXPECT_EQ(barEdges(410).left, (std::array{20, 118, 216, 314}));
  EXPECT_EQ(barEdges(410).right, (std::array{98, 196, 294, 392}));
}

TEST_F(BarMonitorTest, OnePassInAllStates) {
  record.BAR_FULL[1] = 500;
  record.BAR_FORE[1] = 0x00FF00;
  record.BAR_OFFSET.fill(2);
  init(210, 404);
  take("001000", "007000", "*", "------");
  EXPECT_EQ(drawn(),
            "twin: clear 2F2F2F\nshown: clear 2F2F2F\n"
            "twin: line 10,202 50,202 8000FF\ntwin: line 10,0 50,0 00FFFF\n"
            "twin: filled 10,242 50,202 0000FF\n"
            "twin: line 60,0 100,0 00FFFF\ntwin: line 60,0 100,0 00FFFF\n"
            "twin: filled 60,242 100,-318 00FF00\n"
            "twin: line 110,403 150,403 00FFFF\ntwin: line 110,0 150,0 00FFFF\n"
            "twin: filled 110,242 150,242 0000FF\n"
            "shown: copy twin 0,0 210x404 to 0,0\nshown: line 0,242 210,242 ABCDEF\n"
            "shown: refresh\n");
  EXPECT_EQ(said(), "1000[ue]|7000[ue]|---[]|unused[ue]");
  take("001000", "007000", "*", "------");
  EXPECT_THAT(drawn(), HasSubstr("twin: line 10,202 50,202 FF8000\n"));
  take("001000", "007000", "*", "------");
  EXPECT_EQ(drawn(), "");
  take("000500", "007000", "*", "------");
  EXPECT_THAT(drawn(), HasSubstr("twin: line 10,222 50,222 FF8000\n"));
  EXPECT_EQ(said(), "500|||");
}

TEST_F(BarMonitorTest, AllUnusedOrAllLostEndsInTheLostState) {
  const auto unused = [this] { take("------", "------", "------", "------"); };
  take("------", "*", "------", "*");
  EXPECT_EQ(said(), "unused|---[]|unused|---[]") << "both together still draw";
  EXPECT_THAT(drawn(), HasSubstr("twin: filled 60,202 100,202"));
  unused();
  EXPECT_EQ(said(), "---[]|[]|---[]|[]");
  EXPECT_EQ(drawn(), "shown: line 0,202 210,202 ABCDEF\nshown: refresh\n");
  unused();
  EXPECT_EQ(said(), "unused|unused|unused|unused");
  take("*", "*", "*", "*");
  EXPECT_EQ(said(), "|||");
  take("000100", "*", "*", "*");
  EXPECT_EQ(said(), "100|||");
  EXPECT_THAT(drawn(), HasSubstr("shown: copy"));
}

TEST_F(BarMonitorTest, ClearAndSliderActWithTheNextReadings) {
  take("001000", "*", "*", "*");
  drawn();
  monitor.clear();
  EXPECT_EQ(monitor.extremes(0).max, Extremes::kMaxStart);
  EXPECT_EQ(drawn(), "twin: clear 2F2F2F\n");
  monitor.moveGround(-2);
  EXPECT_EQ(record.BAR_OFFSET, (std::array{-2, -2, -2, -2}));
  EXPECT_EQ(drawn(), "");
  take("001000", "*", "*", "*");
  EXPECT_THAT(drawn(), HasSubstr("twin: filled 10,162 50,122"));
}

TEST_F(BarMonitorTest, NonsenseOfAFileIsHarmless) {
  record.BAR_FULL = {1000, std::numeric_limits<float>::quiet_NaN(), 1e-40F, 0};
  record.BAR_OFFSET.fill(std::numeric_limits<int32_t>::max());
  record.BAR_CH = {9, -1, 1, 1};
  init(-4, 404, {1, 77, 1, 1});
  take("001000", "001000", "1E+038", "001000");
  EXPECT_EQ(said(), "---[]|---[]|1E+38[ue]|1000[ue]");
  const std::string all = drawn();
  EXPECT_THAT(all, HasSubstr("shown: copy twin 0,0 1x404"));
  EXPECT_THAT(all, HasSubstr("shown: line 0,1000000 1,1000000")) << "far below the picture";
  EXPECT_THAT(monitor.scaleText(1), ::testing::EndsWith("/div"));
}

}  // namespace
}  // namespace vk
