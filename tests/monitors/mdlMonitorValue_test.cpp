// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorValue.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

class MonitorValue : public testing::Test {
 protected:
  MonitorValue() { resetBoxTable(); }
  ~MonitorValue() override { resetBoxTable(); }
};

TEST_F(MonitorValue, Display) {
  // Reading, range, coefficient, excitation.
  const char* const table =
      R"(+01000 10 1 1=400|+01000 4 1 2=1000|-00007 7 2.5 0=-17.5|+00001 8 0.3 2=0.03
|+00001 11 1 2=0.1|+00001 12 1 2=1|+00001 19 1 2=1|+00001 20 1 2=0.1|+00001 23 1 1=0.4
|+00001 24 1 1=4|------ 4 1 2=none|* 4 1 2=none|+01x00 4 1 2=none)";
  vktest::expectAnswers(table, [](const std::string& question) {
    std::string reading;
    std::istringstream(question) >> reading >> gBoxTable[8].range[4] >> gBoxTable[8].coeff[4] >>
        gBoxTable[8].carrier[4];
    const auto value = toDisplayValue(reading, 8, 4);
    return value ? textOf(*value) : "none";
  });
  EXPECT_FALSE(toDisplayValue("      ", 8, 4));
  // Nonsense from a file reaches no row and no channel.
  for (const auto& [slot, channel] : {std::pair{0, 1}, {9, 1}, {-1, 1}, {1, 0}, {1, 5}}) {
    EXPECT_FALSE(toDisplayValue("+00001", slot, channel)) << slot << channel;
    EXPECT_EQ(unitLabel(slot, channel), "") << slot << channel;
  }
}

TEST_F(MonitorValue, ReadingsAreSixCharactersEach) {
  vktest::expectAnswers("0=|1=+00001|2=-00002|3=------|4=+0|5=", [](const std::string& channel) {
    return std::string(readingOf("+00001-00002------+0", vktest::numbersOf(channel)[0]));
  });
  EXPECT_EQ(readingOf(kLostReading, 2), "");
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
