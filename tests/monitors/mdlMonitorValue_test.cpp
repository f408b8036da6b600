// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"

namespace vk {
namespace {

class MonitorValue : public testing::Test {
 protected:
  MonitorValue() { resetBoxTable(); }
  ~MonitorValue() override { resetBoxTable(); }
};

TEST_F(MonitorValue, Display) {
  struct Row {
    const char* text;
    int16_t range;
    float coeff;
    int16_t carrier;
    const char* shown;
  };
  const Row rows[] = {
      {"+01000", 10, 1, 1, "400"},    {"+01000", 4, 1, 2, "1000"}, {"-00007", 7, 2.5F, 0, "-17.5"},
      {"+00001", 8, 0.3F, 2, "0.03"}, {"+00001", 11, 1, 2, "0.1"}, {"+00001", 12, 1, 2, "1"},
      {"+00001", 19, 1, 2, "1"},      {"+00001", 20, 1, 2, "0.1"}, {"+00001", 23, 1, 1, "0.4"},
      {"+00001", 24, 1, 1, "4"},      {"------", 4, 1, 2, "none"}, {"*", 4, 1, 2, "none"},
      {"      ", 4, 1, 2, "none"},    {"+01x00", 4, 1, 2, "none"}};
  for (const auto& row : rows) {
    gBoxTable[8].range[4] = row.range;
    gBoxTable[8].coeff[4] = row.coeff;
    gBoxTable[8].carrier[4] = row.carrier;
    const auto value = toDisplayValue(row.text, 8, 4);
    EXPECT_EQ(value ? textOf(*value) : "none", row.shown) << row.text << " " << row.range;
  }
  // Nonsense from a file reaches no row and no channel.
  for (const auto& [slot, channel] : {std::pair{0, 1}, {9, 1}, {-1, 1}, {1, 0}, {1, 5}}) {
    EXPECT_FALSE(toDisplayValue("+00001", slot, channel)) << slot << channel;
    EXPECT_EQ(unitLabel(slot, channel), "") << slot << channel;
  }
}

TEST_F(MonitorValue, ReadingsAreSixCharactersEach) {
  const std::string reply = "+00001-00002------+0";
  const char* const kReadings[] = {"", "+00001", "-00002", "------", "+0", ""};
  for (int channel = 0; channel <= 5; ++channel) {
    EXPECT_EQ(readingOf(reply, channel), kReadings[channel]) << channel;
  }
  EXPECT_EQ(readingOf(kLostReading, 2), "");
}

TEST_F(MonitorValue, TheFirstSampleSetsOnlyTheMaximum) {
  Extremes held;
  std::string steps;
  for (const float value : {5.0F, 7.0F, 7.0F, 6.0F, -2.0F, 9.0F}) {
    held.hold(value);
    steps += textOf(held.max) + "/" + textOf(held.min) + " ";
  }
  EXPECT_EQ(steps, "5/1E+10 7/1E+10 7/7 7/6 7/-2 9/-2 ");
}

TEST_F(MonitorValue, CaptionsComeBackAsTheyWere) {
  for (const std::size_t index : {0U, 8U, 9U, 31U}) {
    for (const char* caption : {"", "bridge 7", "[3] x", " "}) {
      EXPECT_EQ(titleOfCaption(monitorCaption(index, caption), index), caption);
    }
  }
  EXPECT_EQ(monitorCaption(9, "bridge"), "[10] bridge");
  EXPECT_EQ(serialLabel(52) + channelLabel(3), "Ser: 0000052Ch: 3");
}

}  // namespace
}  // namespace vk
