// SPDX-License-Identifier: MIT
#include "maintenance/mdlCal.h"

#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::library;

class CalTest : public vktest::LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    place(1, 1, 1000001);
    place(2, 2, 1000002);
    gBoxTable[2].model = kVk480Qe;
  }
  /// What goes out: each text, with "!" when a box was shown.
  static std::string sent() {
    std::string text;
    for (const auto& line : library().transcript) {
      if (line.starts_with("write(2,")) text += line.substr(8, line.size() - 9) + " ";
      if (line.find("box[") != line.npos) text += "! ";
    }
    library().transcript.clear();
    return text;
  }
};

TEST_F(CalTest, OnlyModelsWithAnAnalogOutputHaveOne) {
  std::string on;
  for (const int16_t model : {0, 1, 2, 3}) {
    gBoxTable[2].model = model;
    library().reply("END");
    Calibration calibration{1000002};
    on += pressCal(calibration, 1) && calibration.on ? "1" : "0";
  }
  Calibration gone{7654321};
  EXPECT_EQ(on + (pressCal(gone, 1) ? "1" : "0"), "01010");
}

TEST_F(CalTest, WhatPressesAndClosingSend) {
  // Presses with "x" for a refused one, a colon, the reply to MET; then what went out, the pictures
  // before closing.
  vktest::expectAnswers(
      ":01=; 012|1:01=CAL1 MET CAL0 ; 042|2:01=CAL2 MET CAL0 ; 015|12:01=CAL1 CAL2 MET CAL0 ; 015|"
      "0:01=CAL0 MET CAL0 ; 312|10:01=CAL1 CAL0 MET CAL0 ; 312|1:02=CAL1 MET ; 042|1:ERR,22=CAL1 "
      "MET ; 042|"
      "1x:01=CAL1 ! ; 042|12x:01=CAL1 CAL2 ! MET CAL0 ; 015|10x:01=CAL1 CAL0 ! MET CAL0 ; 312",
      [](const std::string& question) {
        library() = {};
        const auto colon = question.find(':');
        Calibration calibration{1000002};
        for (std::size_t i = 0; i < colon; ++i) {
          if (question[i] == 'x') continue;
          library().reply(question[i + 1] == 'x' ? "ERR,20" : "END");
          EXPECT_TRUE(pressCal(calibration, question[i] - '0'));
        }
        std::string pictures;
        for (const int i : {0, 1, 2}) pictures += std::to_string(calPicture(calibration, i));
        library().reply(question.substr(colon + 1));
        library().reply("END");
        closeCal(calibration);
        closeCal(calibration);
        return sent() + "; " + pictures;
      });
}

}  // namespace
}  // namespace vk
