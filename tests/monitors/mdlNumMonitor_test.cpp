// SPDX-License-Identifier: MIT
#include "monitors/mdlNumMonitor.h"

#include <gtest/gtest.h>

#include <limits>

#include "recorder/mdlBoxTable.h"
#include "tests/support/recording_picture.h"

namespace vk {
namespace {

using vktest::RecordingPicture;

constexpr Colour kOddBack = 0x000080;
constexpr Colour kOddFore = 0x00FFFF;

class NumMonitorTest : public ::testing::Test {
 protected:
  NumMonitorTest() {
    resetBoxTable();
    record.NUM_C_BACK = kOddBack;
    record.NUM_C_FORE = kOddFore;
    record.NUM_CVAL_UP = 100;
    record.NUM_CVAL_DOWN = -100;
    init();
  }
  ~NumMonitorTest() override { resetBoxTable(); }

  void init() {
    const int32_t slot = 1;
    monitor.init({&slot, 1});
  }
  void take(std::string_view reading) { monitor.take({&reading, 1}); }
  /// What the labels are told: "max|min|unit", "=" for one that keeps its text.
  std::string labels() {
    const auto said = monitor.labels(0);
    return said.max.value_or("=") + "|" + said.min.value_or("=") + "|" + said.unit.value_or("=");
  }
  std::string picture() {
    monitor.show({shown, sub});
    return shown.take();
  }
  /// The text that is printed and its colours.
  std::string printed() {
    const std::string all = picture();
    const auto clear = all.find("clear ");
    const auto text = all.find("text ");
    if (text == std::string::npos) return all.empty() ? "nothing new" : "blank";
    const auto fore = all.find(' ', text + 5) + 1;
    return all.substr(clear + 6, 6) + " " + all.substr(fore, all.find('\n', fore) - fore);
  }

  NumMonitorRec record;
  NumMonitor monitor{record};
  std::string log;
  RecordingPicture shown{"shown", 200, 40, log};
  RecordingPicture sub{"sub", 200, 40, log};
};

TEST_F(NumMonitorTest, ANumberIsComposedAtTheRightEdgeAndCopied) {
  picture();
  take("+00012");
  EXPECT_EQ(picture(),
            "sub: clear 2F2F2F\n"
            "sub: text 0,12 FFFFFF [+12]\n"
            "sub: copy sub 0,0 26x40 to 174,0\n"
            "sub: filled 0,0 174,40 2F2F2F\n"
            "shown: copy sub 0,0 200x40 to 0,0\n"
            "shown: refresh\n");
  EXPECT_EQ(picture(), "");
  EXPECT_EQ(labels(), "+12|=|ue") << "the first reading is no minimum";
}

TEST_F(NumMonitorTest, OtherReadings) {
  take("+00012");
  picture();
  labels();
  take("------");
  EXPECT_EQ(picture(),
            "sub: clear 2F2F2F\n"
            "sub: text 0,12 FFFFFF [ unused]\n"
            "shown: copy sub 0,0 200x40 to 0,0\n"
            "shown: refresh\n");
  EXPECT_EQ(labels(), "--- |--- |=");
  take("------");
  take("E12345x");
  EXPECT_EQ(picture(), "");
  monitor.lose();
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [ ---]");
  EXPECT_EQ(labels(), "--- |--- |--- ");
  monitor.lose();
  EXPECT_EQ(picture(), "");
  take("-00012");
  monitor.reloadUnit(0);
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [-12]");
  EXPECT_EQ(labels(), "=|-12|ue");
}

TEST_F(NumMonitorTest, TheMeanOfTenReadings) {
  record.NUM_SPEED = 9;
  record.NUM_POINT = 1;
  init();
  EXPECT_EQ(printed(), "blank");
  for (int i = 0; i < 9; ++i) take("+00100");
  take("------");
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [ unused]");
  take("-00101");
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [+79.9]") << "the running sum stays when a channel is unused";
  EXPECT_EQ(labels().substr(0, 14), "--- |-101.0|ue") << "extremes are those of the readings";
  for (int i = 0; i < 9; ++i) take(i % 2 == 0 ? "+00003" : "-00003");
  EXPECT_EQ(picture(), "");
  take("-00003");
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [0.0]");
}

TEST_F(NumMonitorTest, ColoursFollowWithTheNextValue) {
  record.NUM_CVAL_ONOFF = true;
  const auto after = [&](std::string_view reading) {
    take(reading);
    return printed();
  };
  EXPECT_EQ(after("+00100"), "2F2F2F FFFFFF [+100]");
  EXPECT_EQ(after("+00099"), "000080 00FFFF [+99]");
  EXPECT_EQ(monitor.unitBack(), kOddBack);
  EXPECT_EQ(after("-00100"), "2F2F2F FFFFFF [-100]");
  take("+00101");  // drawn with the abnormal colours, though no frame shows it
  EXPECT_EQ(after("+00001"), "000080 00FFFF [+1]");
  take("+00200");
  take("+00200");
  monitor.lose();
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [ ---]");
  EXPECT_EQ(monitor.unitBack(), kOddBack);
}

TEST_F(NumMonitorTest, HoldLabels) {
  take("+00005");
  take("+00002");
  monitor.clear();
  EXPECT_EQ(labels(), "+5|+2|ue") << "clearing does not reach what was held before";
  EXPECT_EQ(labels(), "=|=|=");
  take("+00001");
  take("-00004");
  EXPECT_EQ(labels(), "+1|-4|=");
  record.NUM_POINT = 2;
  take("+00000");
  EXPECT_EQ(labels(), "+1.00|-4.00|=");
}

TEST_F(NumMonitorTest, NonsenseFromAFile) {
  record.NUM_SPEED = std::numeric_limits<float>::quiet_NaN();
  record.NUM_POINT = 99;
  init();
  take("+00005");
  EXPECT_EQ(printed(), "2F2F2F FFFFFF [+5]");
  record.NUM_CH = 9;
  init();
  take("+00005");
  EXPECT_EQ(printed(), "blank");
  EXPECT_EQ(monitor.labels(0).unit, "");
}

TEST(NumMonitorText, SignAndOverflow) {
  EXPECT_EQ(signedText(1234.5, 6), "Overflow");
  EXPECT_EQ(signedText(0.0, 0), "0");
  EXPECT_EQ(signedText(0.4, 0), "+0");
  EXPECT_EQ(signedText(99999.99F, 3), "+99999.990");
  EXPECT_EQ(signedText(static_cast<double>(99999.99F), 3), "+99999.992");
  EXPECT_EQ(signedText(-9999999999.0, 0), "Overflow");
}

// A character of the recording is half the font's size wide and its size high.
TEST(NumMonitorFont, TheSmallerOfHeightAndWidthStands) {
  const auto fitted = [](int width, int height, int before, auto fit) {
    RecordingPicture picture("picture", width, height);
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
