// SPDX-License-Identifier: MIT
#include "monitors/mdlNumMonitor.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/monitors/logic_test.h"

namespace vk {
namespace {

class NumMonitorTest : public vktest::MonitorLogicTest<NumMonitor, NumMonitorRec> {
 protected:
  NumMonitorTest() {
    record.NUM_C_BACK = 0x000080;
    record.NUM_C_FORE = 0x00FFFF;
    record.NUM_CVAL_UP = 100;
    record.NUM_CVAL_DOWN = -100;
    init(200, 40);
  }
  /// The text that is printed and its colours.
  std::string printed() {
    const std::string all = frame();
    const auto text = all.find("text ");
    if (text == std::string::npos) return all.empty() ? "nothing new" : "blank";
    const auto fore = all.find(' ', text + 5) + 1;
    return all.substr(all.find("clear ") + 6, 6) + " " +
           all.substr(fore, all.find('\n', fore) - fore);
  }
  std::string after(std::string_view reading) {
    take(reading);
    return printed();
  }
};

TEST_F(NumMonitorTest, ANumberIsComposedAtTheRightEdgeAndCopied) {
  EXPECT_EQ(printed(), "blank");
  take("+00012");
  EXPECT_EQ(frame(),
            "twin: clear 2F2F2F\ntwin: text 0,12 FFFFFF [+12]\n"
            "twin: copy twin 0,0 26x40 to 174,0\ntwin: filled 0,0 174,40 2F2F2F\n"
            "shown: copy twin 0,0 200x40 to 0,0\nshown: refresh\n");
  EXPECT_EQ(frame(), "");
  EXPECT_EQ(said(), "[ue]^+12") << "the first reading is no minimum";
  take("------");
  EXPECT_EQ(frame(),
            "twin: clear 2F2F2F\ntwin: text 0,12 FFFFFF [ unused]\n"
            "shown: copy twin 0,0 200x40 to 0,0\nshown: refresh\n");
  EXPECT_EQ(said(), "^--- _--- ");
  take("------");
  EXPECT_EQ(after("E12345x"), "nothing new");
  monitor.lose();
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [ ---]");
  EXPECT_EQ(said(), "[--- ]^--- _--- ");
  monitor.lose();
  EXPECT_EQ(printed(), "nothing new");
  EXPECT_EQ(after("-00012"), "2F2F2F FFFFFF [-12]");
  EXPECT_EQ(said(), "_-12");
}

TEST_F(NumMonitorTest, TheMeanOfTenReadings) {
  record.NUM_SPEED = 9;
  record.NUM_POINT = 1;
  init(200, 40);
  for (int i = 0; i < 9; ++i) take("+00100");
  EXPECT_EQ(after("------"), "2F2F2F FFFFFF [ unused]");
  EXPECT_EQ(after("-00101"), "2F2F2F FFFFFF [+79.9]") << "the running sum stays when unused";
  EXPECT_EQ(said(), "[ue]^--- _-101.0") << "extremes are those of the readings";
  for (int i = 0; i < 9; ++i) take(i % 2 == 0 ? "+00003" : "-00003");
  EXPECT_EQ(printed(), "nothing new");
  EXPECT_EQ(after("-00003"), "2F2F2F FFFFFF [0.0]");
}

TEST_F(NumMonitorTest, ColoursFollowWithTheNextValue) {
  record.NUM_CVAL_ONOFF = true;
  EXPECT_EQ(after("+00100"), "2F2F2F FFFFFF [+100]");
  EXPECT_EQ(after("+00099"), "000080 00FFFF [+99]");
  EXPECT_EQ(monitor.unitBack(), record.NUM_C_BACK);
  EXPECT_EQ(after("-00100"), "2F2F2F FFFFFF [-100]");
  take("+00101");  // drawn with the abnormal colours, though no frame shows it
  EXPECT_EQ(after("+00001"), "000080 00FFFF [+1]");
  take("+00200");
  take("+00200");
  monitor.lose();
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [ ---]");
  EXPECT_EQ(monitor.unitBack(), record.NUM_C_BACK);
}

TEST_F(NumMonitorTest, HoldLabels) {
  take("+00005");
  take("+00002");
  monitor.clear();
  EXPECT_EQ(said(), "[ue]^+5_+2") << "clearing does not reach what was held before";
  take("+00001");
  take("-00004");
  EXPECT_EQ(said(), "^+1_-4");
  record.NUM_POINT = 2;
  take("+00000");
  EXPECT_EQ(said(), "^+1.00_-4.00");
}

TEST_F(NumMonitorTest, NonsenseFromAFile) {
  record.NUM_SPEED = std::numeric_limits<float>::quiet_NaN();
  record.NUM_POINT = 99;
  init(200, 40);
  EXPECT_EQ(after("+00005"), "2F2F2F FFFFFF [+5]");
  said();
  record.NUM_CH = 9;
  init(200, 40);
  EXPECT_EQ(after("+00005"), "blank");
  EXPECT_EQ(said(), "[]");
}

TEST(NumMonitorText, SignAndOverflow) {
  EXPECT_EQ(signedText(1234.5, 6), "Overflow");
  EXPECT_EQ(signedText(0.0, 0), "0");
  EXPECT_EQ(signedText(0.4, 0), "+0");
  EXPECT_EQ(signedText(99999.99F, 3), "+99999.990");
  EXPECT_EQ(signedText(static_cast<double>(99999.99F), 3), "+99999.992");
}

// A character of the recording is half the font's size wide and its size high.
TEST(NumMonitorFont, TheSmallerOfHeightAndWidthStands) {
  const auto fitted = [](int width, int height, int before, auto fit) {
    vktest::RecordingPicture picture("picture", width, height);
    picture.setFontSize(before);
    fit(picture);
    return picture.fontSize();
  };
  EXPECT_EQ(fitted(1000, 40, 16, fitValueFont), 36);
  EXPECT_EQ(fitted(1000, 40, 90, fitValueFont), 44);
  EXPECT_EQ(fitted(110, 400, 16, fitValueFont), 21);
  EXPECT_EQ(fitted(1, 1, 16, fitValueFont), 2) << "ends";
  EXPECT_EQ(fitted(80, 40, 8, fitUnitFont), 19);
  EXPECT_EQ(fitted(400, 40, 8, fitUnitFont), 40);
}

}  // namespace
}  // namespace vk
