// SPDX-License-Identifier: MIT
#include "recorder/mdlConditionRules.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "base/mdlText.h"
#include "recorder/mdlCodeTables.h"
#include "tests/support/text_table.h"

namespace vk {

namespace {

using vktest::expectAnswers;
using vktest::numbersOf;

/// "6..23", or the entries one by one.
std::string rangeOf(const std::vector<int32_t>& list) {
  const bool gaps = list.back() - list.front() >= static_cast<int32_t>(list.size());
  std::string text;
  for (const int32_t entry : list) text += (text.empty() ? "" : ",") + std::to_string(entry);
  return gaps ? text : std::to_string(list.front()) + ".." + std::to_string(list.back());
}

TEST(ConditionLists, OfEachModeByTheOtherChoice) {
  // Of a channel mode: the first data size of each sampling, the first sampling of each data size
  // on the fast and on the slow family, and the last pre-area of each data size, 'M' where only 0 %
  // and "Max" go with it, 'A' for 10.
  expectAnswers(R"(
0=65421000000000000 543321000000000000000000 543333333333333333333333 AAAAAAAAA521MMMMMMMMMMMM|
1=05421000000000000 543321111111111111111111 544444444444444444444444 AAAAAAAA521MMMMMMMMMMMMM|
2=00421000000000000 543322222222222222222222 555555555555555555555555 AAAAAAA521MMMMMMMMMMMMMM)",
                [](const std::string& question) {
                  const int32_t mode = numbersOf(question).at(0);
                  std::string sizes, fast = " ", slow = " ", preAreas = " ";
                  for (int32_t i = 0; i < kSamplings; ++i)
                    sizes += textOf(dataSizeList(mode, i)[0]);
                  for (int32_t i = 0; i < kDataSizes; ++i) {
                    fast += textOf(samplingList(mode, i, i % 2 == 0 ? kVk480Q : kNoModel)[0]);
                    slow += textOf(samplingList(mode, i, i % 2 == 0 ? kVk240Q : kVk240Qe)[0]);
                    const std::string range = rangeOf(preAreaList(mode, i));
                    preAreas += range == "0,11" ? 'M' : range == "0..10" ? 'A' : range.back();
                  }
                  return sizes + fast + slow + preAreas;
                });
  EXPECT_EQ(rangeOf(dataSizeList(0, 0)) + " " + rangeOf(dataSizeList(1, 1)) + " " +
                rangeOf(dataSizeList(2, 2)) + " " + rangeOf(samplingList(1, 6, kVk480Qe)) + " " +
                rangeOf(preAreaList(2, 7)),
            "6..23 5..22 4..21 1..16 0..5");
}

std::string textOfChoice(const ConditionChoice& choice) {
  return textOf(choice.mode) + "," + textOf(choice.sampling) + "," + textOf(choice.dataSize) + "," +
         textOf(choice.preArea);
}

TEST(ConditionChanges, CorrectWhatBecameImpossible) {
  // What changed (mode, data size, sampling; a record shown), the model, and the four choices. On
  // the slow family a data size is judged by the fast one's limit first.
  expectAnswers(R"(
m 2 0,0,6,0=0,0,6,0|m 2 0,0,5,3=0,7,5,3|m 2 1,0,23,0=1,7,5,0|m -1 2,1,8,11=2,7,5,0
|m 2 1,7,23,11=1,7,0,0|m 2 2,2,22,11=2,2,4,0|m 2 2,4,7,5=2,4,7,5|m 0 2,4,7,5=2,7,5,5
|m 2 2,7,8,5=2,7,8,0|d 2 2,7,9,11=2,7,9,0|d 2 2,7,12,11=2,7,12,0|d 2 2,7,7,5=2,7,7,5
|d 2 2,7,8,5=2,7,8,0|d -1 0,0,5,0=0,7,5,0|d 0 2,3,7,0=2,5,7,0|d 0 2,1,7,0=2,7,7,0
|s 2 1,0,9,0=1,0,5,0|s 2 2,0,12,11=2,0,5,0|s 2 0,0,2,10=0,0,6,10|s 2 2,7,8,3=2,7,8,0
|s 2 2,7,12,11=2,7,12,11|s 2 2,7,12,5=2,7,12,0|r 2 2,5,7,10=2,5,7,0|r 2 2,5,9,11=2,5,9,0
|r 2 2,0,7,0=2,2,7,0|r 1 2,2,7,0=2,5,7,0)",
                [](const std::string& question) {
                  const auto n = numbersOf(question.substr(1));
                  const ConditionChoice now{n.at(1), n.at(2), n.at(3), n.at(4)};
                  const char changed = question[0];
                  return textOfChoice(changed == 'm'   ? onChannelModeChange(now, n[0])
                                      : changed == 's' ? onSamplingChange(now)
                                      : changed == 'd' ? onDataSizeChange(now, n[0])
                                                       : refillAll(now, n[0]));
                });
}

TEST(ConditionTimes, WholeAndBeforeTheTrigger) {
  // A full pre-area is the store of the channel mode, or a recording that is smaller.
  expectAnswers(R"(
2,4,13,11=6m 59.4304s, 6.5536s|1,4,13,11=6m 59.4304s, 13.1072s|0,4,13,11=6m 59.4304s, 26.2144s
|0,7,5,10=32.768s, 32.768s|2,5,7,5=26.2144s, 13.1072s|2,0,6,0=0.327680s, 0.000000s
|0,16,9,5=6d 1h 38m 8s, 3d 49m 4s|0,9,21,0=3d 15h 22m 52.781s, 0.000s
|0,16,23,0=2912d 17h 4m 0s, 0s)",
                [](const std::string& question) {
                  const auto n = numbersOf(question);
                  return timeText(recordingTime(n.at(1), n.at(2)), n[1]) + ", " +
                         timeText(preTime(n[0], n[1], n[2], n.at(3)), n[1]);
                });
  expectAnswers("59=59s|60=1m 0s|3600=1h 0s|86400=1d 0s|86700=1d 5m 0s",
                [](const std::string& seconds) { return timeText(*readSingle(seconds), 16); });
}

TEST(CheckSetting, AcceptsOfEachFieldAndReportsTheFirstFault) {
  struct Row {
    const char* text;
    const char* accepted;  // of the small numbers
    std::function<void(MeasureSetting&, std::size_t, int16_t)> change;
  };
  const Row rows[] = {
      {"Channel Mode Error", "0..2", [](auto& r, auto, auto v) { r.channelMode = v; }},
      {"Range Error", "2,3,4,5,6,10,11,14,15,16,17,18,22,23",
       [](auto& r, auto i, auto v) { r.range[i] = v; }},
      {"Filter Error", "0..7", [](auto& r, auto i, auto v) { r.filter[i] = v; }},
      {"Trigger Mode Error", "0..2", [](auto& r, auto, auto v) { r.triggerMode = v; }},
      {"Trigger Slope Error", "0..2", [](auto& r, auto i, auto v) { r.triggerSlope[i] = v; }},
      {"Trigger Level Error", "-2..49", [](auto& r, auto i, auto v) { r.triggerLevel[i] = v; }},
      {"Sampling Error", "0..16", [](auto& r, auto, auto v) { r.sampling = v; }},
      {"PreArea Error", "0..11", [](auto& r, auto, auto v) { r.preArea = v; }},
      {"Data Size Error", "0..23", [](auto& r, auto, auto v) { r.dataSize = v; }},
      {"Unit Error", "0..37", [](auto& r, auto i, auto v) { r.unit[i] = v; }},
      {"Coefficient Error", "-2..49",
       [](auto& r, auto i, auto v) { r.coeff[i] = v == -101 ? 0.0F : v + 0.5F; }},
      {"Sampling against the Channel Mode, Data Size setup error.", "4..49",
       [](auto& r, auto, auto v) { r.dataSize = v == -101 ? 3
                                                : v < 0   ? 0
                                                          : v; }},
      {"PreArea setup error against the Data Size.", "-2..5",
       [](auto& r, auto, auto v) { r.preArea = v == -101 || v > 5 ? 6 : v; }},
      {"Balance Error", "0..1", [](auto& r, auto i, auto v) { r.balance[i] = v; }},
      {"", "0..2", [](auto& r, auto i, auto v) { r.carrier[i] = v; }},
  };
  MeasureSetting faulty;
  for (int32_t error = kCarrierError; error > 0; --error) {
    const Row& row = rows[error - 1];
    for (const std::size_t channel : {1U, 4U}) {
      std::vector<int32_t> accepted;
      for (int16_t value = -2; value < 50; ++value) {
        MeasureSetting record;
        row.change(record, channel, value);
        if (checkSetting(record) != error) accepted.push_back(value);
      }
      EXPECT_EQ(rangeOf(accepted), row.accepted) << error;
    }
    row.change(faulty, 2, -101);
    EXPECT_EQ(checkSetting(faulty), error);
    EXPECT_EQ(settingErrorText(error), row.text);
  }
  EXPECT_EQ(std::string(settingErrorText(-1)) + std::string(settingErrorText(0)), "");
  // Of a level, and then of a coefficient.
  expectAnswers(
      "100=0,0|-100=0,0|100.1=6,0|-100.1=6,0|0.00001=0,0|-0.00001=0,0|0.000009=0,11|-9999999=6,0"
      "|10000000=6,11|no number=6,11",
      [](const std::string& value) {
        MeasureSetting levels, coeffs;
        levels.triggerLevel[4] = coeffs.coeff[4] = value == "no number" ? NAN : *readSingle(value);
        return textOf(checkSetting(levels)) + "," + textOf(checkSetting(coeffs));
      });
}

TEST(CheckSetting, FieldsAgainstEachOther) {
  // The result and the pre-area: the full one becomes "Max" where the store is too small for it. A
  // sampling that the mode cannot use has no limit.
  expectAnswers(R"(
2,2,3,0=12,0|2,2,4,0=0,0|2,0,0,0=0,0|2,2,7,5=0,5|2,2,7,6=13,6|2,2,12,7=0,7|2,2,7,11=0,11
|2,2,6,10=0,10|2,2,7,10=0,11|0,2,11,10=0,11|2,2,10,10=0,10)",
                [](const std::string& question) {
                  const auto n = numbersOf(question);
                  MeasureSetting record;
                  record.channelMode = static_cast<int16_t>(n.at(0));
                  record.sampling = static_cast<int16_t>(n.at(1));
                  record.dataSize = static_cast<int16_t>(n.at(2));
                  record.preArea = static_cast<int16_t>(n.at(3));
                  const int32_t result = checkSetting(record);
                  return textOf(result) + "," + textOf(record.preArea);
                });
}

TEST(TriggerCaution, LooksAtTheUsedChannelsOnly) {
  // The channel mode, the trigger mode and the four slopes.
  expectAnswers(
      "0,0,2,0,0,0=1|0,1,0,2,2,2=0|1,0,2,2,0,1=1|1,1,2,0,2,2=0|2,0,2,2,2,2=1|2,1,2,2,2,1=0"
      "|2,2,2,2,2,2=0",
      [](const std::string& question) {
        const auto n = numbersOf(question);
        PerChannel<int16_t> slopes;
        for (std::size_t i = 1; i <= 4; ++i) slopes[i] = static_cast<int16_t>(n.at(i + 1));
        return std::to_string(triggerCaution(n[0], n[1], slopes));
      });
}

std::string shownAs(const FieldEntry& entry) {
  return entry.text + (entry.accepted ? "" : "!") + entry.message;
}

TEST(LevelBox, AcceptsAPercentageAndShowsIt) {
  const auto entered = [](const std::string& text) { return shownAs(levelEntered(text)); };
  expectAnswers(
      "100=+100.0|-100=-100.0|0=0.0| 10.5 =+10.5|10.25=+10.3|0.15=+0.2|-99.95=-100.0|-0.04=0.0"
      "|0.04=+0.0|.5=+0.5|1E1=+10.0|1,0=+10.0|100.04=!Outside value|-100.04=!Outside value"
      "|1E300=!Outside value|=!Invalid\xE3\x80\x80value|10%=!Invalid\xE3\x80\x80value",
      entered);
  expectAnswers("+10.0=+10.0|0.0=0|-10.5=-10.5|-100.0=-100|abc=0",
                [](const std::string& text) { return levelRestored(levelOf(text)); });
  expectAnswers("10=+10.0|0=0.0|-0.1=-0.1",
                [](const std::string& level) { return levelText(*readSingle(level)); });
}

TEST(CoeffBox, FillsEightCharacters) {
  expectAnswers(R"(
1=1.000000|1.5=1.500000|0.00001=0.000010|-0.00001=-0.00001|12.5=12.50000|123.25=123.2500
|1234.5=1234.500|12345.5=12345.50|123456.5=123456.5|9999999=9999999|-9999999=-9999999|10=10.00000
|100000=100000.0|-1=-1.000000|-1.5=-1.50000|-12345.67=-12345.7|-123456.7=-123456.7|1e2=100.0000
|58.29114=58.29114|9999999.4=9999999|9999999.6=!Setting range 0.000010 - 9999999 |
0.000009=!Setting range 0.000010 - 9999999 |1E39=!Setting range 0.000010 - 9999999 |
=!Setting range 0.000010 - 9999999 |- 1=!Setting range 0.000010 - 9999999 )",
                [](const std::string& text) {
                  const FieldEntry entry = coeffEntered(text);
                  // What the box shows enters again as itself.
                  EXPECT_TRUE(!entry.accepted || coeffEntered(entry.text) == entry) << text;
                  return shownAs(entry);
                });
}

}  // namespace
}  // namespace vk
