// SPDX-License-Identifier: MIT
#include "recorder/mdlBoxTable.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/support/text_table.h"

namespace vk {
namespace {

class BoxTable : public ::testing::Test {
 protected:
  void SetUp() override {
    resetBoxTable();
    place(1, 1, 1000001, kVk480Qe);
    place(2, 2, 1000002, kVk240Qe);
    place(3, -1, 1000003, kVk240Q);     // lost by the status poll
    place(4, -1001, 1000004, kVk480Q);  // lost by the monitors
    place(5, 5, 1000002, kVk480Q);      // the serial of row 2 again
    place(9, 7, 1000009, kVk480Qe);     // the row of a setting file
  }
  void TearDown() override { resetBoxTable(); }

  static void place(std::size_t row, int32_t handle, int32_t serial, int16_t model) {
    gBoxTable[row].handle = handle;
    gBoxTable[row].serial = serial;
    gBoxTable[row].model = model;
  }
};

TEST_F(BoxTable, FindsABoxBySerial) {
  // The slot, the index and the family. Row 9 is not searched; a stale serial reaches the first
  // box.
  vktest::expectAnswers(
      "1000001=1 1 3|1000002=2 2 1|1000003=-1 3 0|1000004=-1001 4 2|1000009=1 -1 0|"
      "1234567=1 -1 0|9999999=-1 -1 0",
      [](const std::string& text) {
        const int32_t serial = std::stoi(text);
        return std::to_string(slotOf(serial)) + " " + std::to_string(slotIndexOf(serial)) + " " +
               std::to_string(familyOf(serial));
      });
  EXPECT_EQ(serialText(42) + serialText(9999999), "00000429999999");
  std::string connected;
  for (const MeasureSetting& row : gBoxTable) connected += isConnected(row) ? 'c' : '-';
  EXPECT_EQ(connected, "cc--c---c");
}

TEST_F(BoxTable, NoSerialIsNoBoxInAFullTableEither) {
  for (std::size_t row = 1; row < kBoxes; ++row) place(row, 11, 1000000, kVk480Qe);
  place(kBoxes, 0, kNoSerial, kVk480Qe);  // a box that says so of itself
  EXPECT_EQ(slotOf(kNoSerial), 0);
  EXPECT_TRUE(isConnected(gBoxTable[kBoxes]));
  EXPECT_EQ(slotIndexOf(kNoSerial), -1);
  EXPECT_EQ(familyOf(kNoSerial), 0);
}

std::string changedRows() {
  std::string text;
  const auto changed = takeChangedRows();
  for (std::size_t row = 0; row < changed.size(); ++row) {
    if (changed[row]) text += std::to_string(row);
  }
  return text;
}

TEST_F(BoxTable, ReportsARowOnceForEachFieldAPanelShows) {
  place(8, 8, 1000008, kVk480Q);
  EXPECT_EQ(changedRows(), "123458");
  const std::function<void(MeasureSetting&)> shown[] = {
      [](auto& box) { box.handle = -1; },      [](auto& box) { box.fileCountText = "Un-insert"; },
      [](auto& box) { box.syncMode = 0; },     [](auto& box) { box.boxState = 3; },
      [](auto& box) { box.model = kVk240Qe; },
  };
  for (const auto& change : shown) {
    change(gBoxTable[8]);
    change(gBoxTable[kFileRow]);
    EXPECT_EQ(changedRows(), "8") << &change - shown;
    EXPECT_EQ(changedRows(), "");
  }
  gBoxTable[8].fileCountText = "UN-INSERT";
  gBoxTable[8].serial = 1000007;
  gBoxTable[8].balance[1] = 1;
  EXPECT_EQ(changedRows(), "");
  resetBoxTable();
  EXPECT_EQ(gBoxTable[1], MeasureSetting{});
  EXPECT_EQ(changedRows(), "");
}

}  // namespace
}  // namespace vk
