// SPDX-License-Identifier: MIT
#include "conditions/mdlDialogConditions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlSetDataWork.h"
#include "tests/support/dialog_controls.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::controlsOf;
using vktest::expectAnswers;
using vktest::numbersOf;

TEST(DialogConditions, ReadsTextsThatTheirListsMayLack) {
  DialogControls controls = controlsOf(MeasureSetting{}, kVk480Q);
  expectAnswers(
      "0.5 V; 20000 ue;10 kHz=1 4 6|0.5 V;   5000 ue;10 kHz=1 4 6|0.5 V;8000.0 ue;30kHz=1 11 7|"
      "2.0 V;2000.0 ue;  10 Hz=2 11 0|2.0 V; 40000 ue;10 Hz=2 4 0|;;=2 4 0|OFF;     200 ue;=2 4 0",
      [&](const std::string& question) {
        const std::size_t range = question.find(';') + 1;
        const std::size_t filter = question.find(';', range) + 1;
        controls.channel[3].carrier = question.substr(0, range - 1);
        controls.channel[3].range = question.substr(range, filter - 1 - range);
        controls.channel[3].filter = question.substr(filter);
        const MeasureSetting record = readControls(controls);
        return textOf(int32_t{record.carrier[3]}) + " " + textOf(int32_t{record.range[3]}) + " " +
               textOf(int32_t{record.filter[3]});
      });
}

TEST(DialogConditions, ChecksWhatTheControlsMake) {
  expectAnswers(
      "+10.0;1.000000=0|100.04;1=0|100.1;1=6|ten;1=6|;1=6|1e300;1=6|+10.0;=11|+10.0;1,5x=11|"
      "+10.0;0=11|ten;one=11|+10.0;9999999.6=11",
      [](const std::string& question) {
        DialogControls controls = controlsOf(MeasureSetting{}, kVk480Q);
        const std::size_t bar = question.find(';');
        controls.channel[4].level = question.substr(0, bar);
        controls.channel[4].coeff = question.substr(bar + 1);
        MeasureSetting record;
        const int32_t error = checkControls(controls, record);
        if (error == kSettingOk) static_cast<void>(buildCommandTexts(controls));  // throws nothing
        return textOf(error);
      });
}

TEST(DialogConditions, BuildsTheTextsOfTheInstrument) {
  DialogControls controls = controlsOf(MeasureSetting{}, kNoModel);
  controls.channelMode = "1 Channel";  // the other channels are sent all the same
  controls.channel[1].level = "-99.9";
  controls.channel[2] = {"0.5 V", "8000.0 ue", "  3 kHz", 1, 1, 29, "-0.4", "-1.50000"};
  controls.channel[3].range.clear();
  EXPECT_EQ(buildCommandTexts(controls),
            (CommandTexts{"105240505"
                          "07060707"
                          "CUDUU"
                          "M999P-004N000N000"
                          "020U000128K2122",
                          "ue, ,ue,ue", "1.000000,-1.50000,1.000000,1.000000"}));
  controls.model = kVk240Qe;
  controls.channel[1] = {"2.0 V", " 10000 ue", "300 Hz", 0, 0, 0, "+10.5", "1"};
  controls.channel[2] = {"2.0 V", "   5000 ue", "  1 kHz", 0, 0, 0, "-10.5", "1"};
  EXPECT_EQ(buildCommandTexts(controls).setting,
            "110050505"
            "30PSPSPS"
            "CUUUU"
            "+010-010N000N000"
            "020U000128K");
}

TEST(DialogConditions, ARowKeepsWhatIsNoCondition) {
  resetBoxTable();
  MeasureSetting& row = gBoxTable[3];
  row.handle = 3;
  row.serial = 1234567;
  row.model = kVk240Q;
  row.fileCountText = "001/002";
  row.syncMode = 0;
  row.boxState = 3;
  row.carrier.fill(0);
  std::mt19937 random(3);
  const MeasureSetting record = readControls(vktest::randomControls(random, kVk240Q));
  MeasureSetting expected = record;
  expected.handle = 3;
  expected.serial = 1234567;
  expected.model = kVk240Q;
  expected.fileCountText = "001/002";
  expected.syncMode = 0;
  expected.boxState = 3;
  storeRecord(3, record);
  EXPECT_EQ(row, expected);
  EXPECT_EQ(row.carrier[4], 2);
  const auto table = gBoxTable;
  storeRecord(-1, MeasureSetting{});
  EXPECT_EQ(gBoxTable, table);
  resetBoxTable();
}

/// Model, mode, trigger, four slopes; then per channel c, k (excitation), s, l, and t.
TEST(DialogConditions, EnablesWhatTakesPart) {
  expectAnswers(
      "2,2,1,0,1,2,0=cksl cksl cks- cksl t|2,1,0,0,2,0,0=cksl cks- ---- ---- t|"
      "3,0,2,0,0,0,0=ck-- ---- ---- ---- -|0,2,1,2,0,0,2=c-s- c-sl c-sl c-s- t|"
      "-1,0,1,1,1,1,1=cksl ---- ---- ---- t",
      [](const std::string& question) {
        const auto n = numbersOf(question);
        PerChannel<int32_t> slopes;
        for (std::size_t i = 1; i <= kChannels; ++i) slopes[i] = n[i + 2];
        const DialogEnable enable = dialogEnable(n[0], n[1], n[2], slopes);
        std::string text;
        for (const ChannelEnable& channel : enable.channel) {
          text += channel.channel ? 'c' : '-';
          text += channel.carrier ? 'k' : '-';
          text += channel.slope ? 's' : '-';
          text += channel.level ? 'l' : '-';
          text += ' ';
        }
        return text + (enable.trigger ? 't' : '-');
      });
}

/// What the instrument's texts read back as: a slope that is off takes no level along; a level has
/// no decimals on the VK-240Q family, and no sign behind a letter on the other; the VK-240Q family
/// has no excitation; balance travels by itself.
MeasureSetting throughInstrument(const DialogControls& controls, const MeasureSetting& row) {
  MeasureSetting record = readControls(controls);
  const bool low = !modelFamily(controls.model).excitation;
  for (std::size_t i = 1; i <= kChannels; ++i) {
    float& level = record.triggerLevel[i];
    if (record.triggerSlope[i] == kSlopeOff) {
      level = 0.0F;
    } else if (low) {
      level = static_cast<float>(roundWhole(static_cast<double>(level)));
    } else if (level != -100.0F) {
      level = std::fabs(level);
    }
  }
  if (low) record.carrier.fill(0);
  gBoxTable[8] = row;
  storeRecord(8, record);
  MeasureSetting expected = gBoxTable[8];
  expected.balance = row.balance;
  return expected;
}

TEST(DialogConditions, WhatIsSentReadsBackTheSame) {
  std::mt19937 random(20260105);
  for (int turn = 0; turn < 2000; ++turn) {
    DialogControls controls = vktest::randomControls(random, turn % 4);
    for (ChannelControls& channel : controls.channel) {
      // These take five characters, which shift the rest of the string.
      const double level = toDouble(channel.level);
      if (level < 0 && level >= -0.5) channel.level = "0.0";
    }
    resetBoxTable();
    gBoxTable[1].serial = controls.serial;
    gBoxTable[1].model = static_cast<int16_t>(controls.model);
    const MeasureSetting expected = throughInstrument(controls, gBoxTable[1]);
    MeasureSetting record;
    ASSERT_EQ(checkControls(controls, record), kSettingOk);
    const CommandTexts texts = buildCommandTexts(controls);
    ASSERT_EQ(decodeSettingString(controls.serial, texts.setting), 0) << texts.setting;
    ASSERT_EQ(decodeUnitList(controls.serial, texts.unit + "\r\n"), 0);
    ASSERT_EQ(decodeCoeffList(controls.serial, texts.coeff + "\r\n"), 0);
    ASSERT_EQ(gBoxTable[1], expected) << texts.setting << "\n" << texts.unit << "\n" << texts.coeff;
  }
  resetBoxTable();
}

}  // namespace
}  // namespace vk
