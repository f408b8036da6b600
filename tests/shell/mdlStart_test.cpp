// SPDX-License-Identifier: MIT
#include "shell/mdlStart.h"

#include <gtest/gtest.h>

#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "shell/mdlConfig.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_box.h"

namespace vk {
namespace {

using vktest::ScriptedBox;

class Start : public testing::Test {
 protected:
  Start() {
    setDefaults();
    gUSBBusy = 0;
    vktest::plugIn(
        {{1, box("0000042", "26/01/05 09:30:00")}, {2, box("1234567", "05/03/01 00:00:07")}});
  }
  ~Start() override {
    gUSBBusy = 0;
    vktest::library() = {};
    resetBoxTable();
  }
  static ScriptedBox box(const std::string& serial, const std::string& clock) {
    ScriptedBox made;
    made.serial = serial;
    made.clock = clock;
    return made;
  }
  void activate() {
    EXPECT_TRUE(activateStart({}, rows_));
    vktest::library().takeTranscript();
  }

  vktest::FakeDesktop desktop_;
  std::vector<StartRow> rows_{{"9999998", "old", true}};
};

TEST_F(Start, ClocksRunUnlessAnExchangeDoes) {
  activate();
  gUSBBusy = 1;
  EXPECT_FALSE(tickStartClocks(rows_));
  EXPECT_EQ(vktest::library().takeTranscript(), "");
  gUSBBusy = 0;
  EXPECT_TRUE(tickStartClocks(rows_));
  EXPECT_EQ(vktest::library().takeTranscript(),
            "write(1,STA20)\nread(1)\nwrite(2,STA20)\nread(2)\n");
  const std::vector<StartRow> both = {{"0000042", "2026/01/05  09:30:00", false},
                                      {"1234567", "2005/03/01  00:00:07", false}};
  EXPECT_EQ(rows_, both);
  // One that answers is enough for a change, wherever it stands; the other keeps its last clock.
  for (const int16_t answering : {1, 2}) {
    vktest::plugIn({{answering, box("0000042", "26/01/05 09:30:01")}});
    rows_[0].clock = rows_[1].clock = "old";
    EXPECT_TRUE(tickStartClocks(rows_));
    EXPECT_EQ(rows_[answering - 1].clock, "2026/01/05  09:30:01");
    EXPECT_EQ(rows_[2 - answering].clock, "old");
  }
  rows_ = both;
  vktest::plugIn({});
  EXPECT_FALSE(tickStartClocks(rows_));
  EXPECT_EQ(rows_, both);
}

TEST_F(Start, TimeSetupOfTheTickedRowsAndARefusedOneIsReadAllTheSame) {
  ScriptedBox refusing = box("1234567", "05/03/01 00:00:07");
  refusing.plain = "ERR,20";
  vktest::plugIn({{1, box("0000042", "26/01/05 09:30:00")}, {2, refusing}});
  activate();
  desktop_.time = {2005, 3, 1, 0, 0, 7};
  rows_.resize(12, {"", "", true});  // more than the table has
  rows_[1].ticked = true;
  setStartClocks(rows_);
  EXPECT_TRUE(vktest::library().takeTranscript().starts_with(
      "write(2,RTM5/3/1/0:0:7)\nread(2)\nwrite(2,STA20)\nread(2)\n"));
  EXPECT_EQ(desktop_.log.front(), "box[USB Error][Parameter Error[ERROR-20]][ok][exclamation]");
  EXPECT_EQ(rows_[0].clock + rows_[1].clock + rows_[11].clock, "2005/03/01  00:00:07");
}

}  // namespace
}  // namespace vk
