// SPDX-License-Identifier: MIT
#include "recorder/mdlSelectMeter.h"

#include <gtest/gtest.h>

#include "recorder/mdlBoxTable.h"
#include "tests/support/fake_desktop.h"

namespace vk {
namespace {

class SelectMeter : public testing::Test {
 protected:
  SelectMeter() {
    resetBoxTable();
    add(1, 1, 1234567, 0);
    add(3, 2, 42, 1);
  }
  ~SelectMeter() override { resetBoxTable(); }
  static void add(std::size_t row, int32_t handle, int32_t serial, int16_t channelMode) {
    gBoxTable[row].handle = handle;
    gBoxTable[row].serial = serial;
    gBoxTable[row].channelMode = channelMode;
  }

  vktest::FakeDesktop desktop_;
};

TEST_F(SelectMeter, ReadyOnceEverythingIsChosen) {
  const std::tuple<int32_t, const char*, int32_t, bool> rows[] = {
      {1, "1234567", 0, true}, {1, "1234567", 4, true},  {1, "1234567", -1, false},
      {1, "", 0, false},       {3, "1234567", -1, true}, {1, "1234567", 5, false}};
  for (const auto& [mode, meter, channel, ready] : rows)
    EXPECT_EQ(selectReady(mode, meter, channel), ready) << mode << meter << channel;
}

TEST_F(SelectMeter, AcceptedOrRefused) {
  const struct {
    int32_t mode;
    const char* meter;
    int32_t channel;
    bool accepted;
    int32_t serial, selected;
    bool realBox;
  } rows[] = {
      {1, "All Meters", 4, true, 0, 4, false},   {1, "disconnect", 4, true, 9999999, 4, false},
      {1, "0000042", 2, true, 42, 2, true},      {1, "0000042", 3, false, 77, 3, true},
      {3, "1234567", 2, true, 1234567, 0, true}, {4, "", -1, true, 9999999, 0, false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.meter) + std::to_string(row.channel));
    gSelMode = row.mode;
    gSelSerial = 77;
    gSelChannel = 3;
    EXPECT_EQ(acceptSelection(row.meter, row.channel), row.accepted);
    EXPECT_TRUE(gSelSerial == row.serial && gSelChannel == row.selected) << gSelSerial;
    EXPECT_EQ(boxSelected(), row.realBox);
    EXPECT_EQ(desktop_.takeLog(),
              row.accepted ? ""
                           : "box[Error][This channel can not be used.Change the setting of the "
                             "number of channels.][ok][exclamation]\n");
  }
  cancelSelection();
  EXPECT_EQ(gSelSerial, -1);
  EXPECT_FALSE(boxSelected());
}

}  // namespace
}  // namespace vk
