// SPDX-License-Identifier: MIT
#include "conditions/mdlSettingFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>

#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlConditionRules.h"
#include "storage/mdlHedDataWork.h"
#include "tests/support/data_folder.h"
#include "tests/support/dialog_controls.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::controlsOf;
using vktest::DataFolder;
using vktest::expectAnswers;

constexpr const char* kExample =
    "VK-480Q Setting Data\r\n"
    "Number of Channels :4\r\n"
    "Range :5000ue,5000ue,5000ue,5000ue\r\n"
    "Carrier :2.0V,2.0V,2.0V,2.0V\r\n"
    "Filter :10kHz,10kHz,10kHz,10kHz\r\n"
    "Balance :ON,ON,ON,ON\r\n"
    "Trigger Mode :CONTINUE\r\n"
    "Trigger Slope :UP,OFF,OFF,OFF\r\n"
    "Trigger Level :+10.0,10.0,10.0,10.0\r\n"
    "Sampling :200usec\r\n"
    "Pre Area :0%\r\n"
    "Data Size :128K\r\n"
    "Unit :ue,ue,ue,ue\r\n"
    "Coeff :1.000000E+00,1.000000E+00,1.000000E+00,1.000000E+00\r\n";

constexpr const char* kOld =
    "VK-240Q Setting Data\r\n"
    "Number of Channels :2\r\n"
    "Range :5000,10000,20000ue,5000ue\r\n"
    "Carrier :0.5V,0.5V,0.5V,0.5V\r\n"
    "Filter :30,100Hz,300,PASS\r\n"
    "Balance :ON,OFF,ON,ON\r\n"
    "Trigger Mode :SINGLE\r\n"
    "Trigger Slope :UP,DOWN,OFF,OFF\r\n"
    "Trigger Level :+10.0,-20.0,0.0,0.0\r\n"
    "Sampling :1000msec\r\n"
    "Pre Area :100%\r\n"
    "Data Size :36M\r\n"
    "Unit :mm,###, ,kN\r\n"
    "Coeff :1,-2.5,1E-05,9999999\r\n";

/// The text with another value behind a label; without the line when the value is "none".
std::string with(std::string text, const std::string& label, const std::string& value) {
  const std::size_t start = text.find(label + " :");
  EXPECT_NE(start, std::string::npos) << label;
  const std::size_t end = text.find("\r\n", start);
  if (value == "none") return text.erase(start, end + 2 - start);
  return text.replace(start, end - start, label + " :" + value);
}

/// The shown text of a whole pre-area, after the lists were filled for the record.
std::string shownPreArea(const MeasureSetting& record, int32_t model) {
  const ConditionChoice choice =
      refillAll({record.channelMode, record.sampling, record.dataSize, record.preArea}, model);
  return std::string(textAt(preAreaName, choice.preArea));
}

class SettingFile : public ::testing::Test {
 protected:
  void SetUp() override { resetBoxTable(); }
  void TearDown() override {
    resetBoxTable();
    gDefaultFolder.clear();
  }
  static const MeasureSetting& row() { return gBoxTable[kFileRow]; }

  /// The log with the folder's name taken out and line ends as bars.
  std::string takeLog() {
    std::string text = desktop_.takeLog();
    const std::string name = folder_.path().string();
    for (auto at = text.find(name); at != std::string::npos; at = text.find(name)) {
      text.replace(at, name.size(), "<>");
    }
    std::erase(text, '\r');
    std::replace(text.begin(), text.end(), '\n', '|');
    return text;
  }
  std::string inFolder(const std::string& name) const { return (folder_.path() / name).string(); }
  bool save(const DialogControls& controls, const std::string& path) {
    desktop_.files = {path};
    return saveSettingFile(controls);
  }
  bool load(int32_t model, const std::string& path) {
    desktop_.files = {path};
    return loadSettingFile(model);
  }

  vktest::FakeDesktop desktop_;
  DataFolder folder_;
};

TEST_F(SettingFile, WritesAndReadsTheExample) {
  MeasureSetting record;
  record.sampling = 5;
  DialogControls controls = controlsOf(record, kNoModel);
  for (std::size_t i = 2; i <= kChannels; ++i) controls.channel[i].level = "10.0";
  EXPECT_EQ(buildSettingFileText(controls) + "\r\n", kExample);
}

TEST_F(SettingFile, ReadsTheOldDialectAndWritesThePresentWords) {
  ASSERT_EQ(readSettingFile(kOld), 0);
  EXPECT_TRUE(row().model == kVk240Q && row().serial == 0);
  std::string present = with(kOld, "Range", "5000ue,10000ue,20000ue,5000ue");
  present = with(present, "Carrier", "2.0V,2.0V,2.0V,2.0V");
  present = with(present, "Filter", "30Hz,100Hz,300Hz,1kHz");
  present = with(present, "Sampling", "1sec");
  present = with(present, "Data Size", "32M");
  present = with(present, "Coeff", "1.000000E+00,-2.500000E+00,1.000000E-05,9.999999E+06");
  EXPECT_EQ(buildSettingFileText(controlsOf(row(), kVk240Q)) + "\r\n", present);
}

/// The first channel's index of a value in the low and in the high dialect; "x" stops the parser.
TEST_F(SettingFile, KnowsTheWordsOfEachDialect) {
  expectAnswers(
      "Number of Channels :1=0 0|Number of Channels :4=2 2|Number of Channels :3=0 0|"
      "Range :20000,=6 0|Range :10000ue,=5 5|Range :30000ue,=0 7|Range : 5000ue,=4 4|"
      "Range :,5000ue=0 0|Carrier :0.5V,=0 1|Filter :PASS=4 0|Filter :3kHz=0 5|Filter :10Hz=0 0|"
      "Filter :1kHz=4 4|Filter :none=0 0|Balance :OFF,=1 1|Balance :off=0 0|"
      "Trigger Mode :FREE RUN=2 2|Trigger Slope :DOWN=1 1|Sampling :0.05msec=3 0|"
      "Sampling :20usec=0 2|Sampling :1msec=7 7|Sampling :1000msec=16 0|Sampling :none=0 0|"
      "Data Size :512k=9 0|Data Size :36M=19 0|Data Size :32M=19 19|Data Size :240M=23 23|"
      "Pre Area :90%=9 9|Pre Area :100%=10 10|Pre Area :Max=0 0|Unit :N/mm2,=37 37|"
      "Unit : ,ue,ue,ue=0 0|Unit :UE=0 0|Trigger Level :12.345,0,0,0=12.3 12.3|"
      "Trigger Level :1,2,3=x x|Trigger Level :none=x x|Coeff :+2,1,1,1=2 2|Coeff :a,1,1,1=x x",
      [](const std::string& question) {
        const std::size_t colon = question.find(" :");
        const std::string label = question.substr(0, colon);
        std::string answer;
        for (const auto parse : {parseLowDialect, parseHighDialect}) {
          MeasureSetting record = zeroedSetting();
          if (parse(with(kExample, label, question.substr(colon + 2)), record) != 0) {
            answer += "x ";
            continue;
          }
          const std::map<std::string, float> fields = {
              {"Number of Channels", record.channelMode},
              {"Range", record.range[1]},
              {"Carrier", record.carrier[1]},
              {"Filter", record.filter[1]},
              {"Balance", record.balance[1]},
              {"Trigger Mode", record.triggerMode},
              {"Trigger Slope", record.triggerSlope[1]},
              {"Trigger Level", record.triggerLevel[1]},
              {"Sampling", record.sampling},
              {"Pre Area", record.preArea},
              {"Data Size", record.dataSize},
              {"Unit", record.unit[1]},
              {"Coeff", record.coeff[1]},
          };
          answer += textOf(fields.at(label)) + " ";
        }
        answer.pop_back();
        return answer;
      });
}

TEST_F(SettingFile, TellsTheDialectByOneWordAnywhere) {
  ASSERT_EQ(readSettingFile(with(kOld, "Unit", "ue,VK-480Q,ue,ue")), 1);  // old words are unknown
  EXPECT_EQ(takeLog(), "box[Error][Range Error][ok][information]|");
  EXPECT_EQ(row(), MeasureSetting{});
  ASSERT_EQ(readSettingFile(with(kExample, "Unit", "ue,VK-480Q,ue,ue")), 0);
  EXPECT_EQ(row().model, kVk480Q);
}

TEST_F(SettingFile, RefusesWhatItCannotReadAndKeepsTheRow) {
  const std::string unreadable =
      "box[Setting file Error][Cannot read setting file.]"
      "[ok][exclamation]|";
  const auto refusal = [this](const std::string& text) {
    EXPECT_EQ(readSettingFile(text), 1);
    EXPECT_EQ(row(), MeasureSetting{});
    return takeLog();
  };
  const std::string whole = kExample;
  EXPECT_EQ(refusal(""), unreadable);
  EXPECT_EQ(refusal(whole.substr(0, whole.size() - 2)), unreadable);
  EXPECT_EQ(refusal(with(whole, "Trigger Level", "+10.0,x,0,0")), unreadable);
  const auto error = [](const std::string& text) {
    return "box[Error][" + text + "][ok][information]|";
  };
  EXPECT_EQ(refusal(with(whole, "Trigger Level", "+10.0,0,0,100.1")), error("Trigger Level Error"));
  EXPECT_EQ(refusal(with(whole, "Range", "none")), error("Range Error"));
  EXPECT_EQ(refusal(with(whole, "Coeff", "1,1,0,1")), error("Coefficient Error"));
  EXPECT_EQ(refusal(with(whole, "Pre Area", "60%")),
            error("PreArea setup error against the Data Size."));
  MeasureSetErrorView(kCarrierError);
  EXPECT_EQ(takeLog(), "");
}

TEST_F(SettingFile, TheWholePreAreaSurvivesUnderEitherName) {
  // Per channel mode the largest size that shows it, and the smallest that calls it "Max".
  const int32_t sizes[kModes][2] = {{8, 12}, {7, 11}, {6, 10}};
  for (const int32_t model : {kVk240Qe, kVk480Q}) {
    for (int16_t mode = 0; mode < kModes; ++mode) {
      for (int16_t preArea = kPreAreaFull; preArea <= kPreAreaMax; ++preArea) {
        MeasureSetting record;
        record.channelMode = mode;
        record.sampling = 7;
        record.dataSize = static_cast<int16_t>(sizes[mode][preArea - kPreAreaFull]);
        record.preArea = preArea;
        record.filter.fill(4);
        ASSERT_TRUE(save(controlsOf(record, model), inFolder("pre.set")));
        ASSERT_TRUE(load(model, inFolder("pre.set")));
        EXPECT_EQ(headerValue(DataFolder::bytesOf(inFolder("pre.set")), "Pre Area :"), "100%");
        EXPECT_EQ(shownPreArea(row(), model), preAreaName[static_cast<std::size_t>(preArea)]);
      }
    }
  }
  // A size between the two offers neither name.
  ASSERT_EQ(readSettingFile(with(kExample, "Pre Area", "100%")), 0);
  EXPECT_EQ(row().preArea, kPreAreaMax);
  EXPECT_EQ(shownPreArea(row(), kVk480Q), "0 %");
}

TEST_F(SettingFile, ReadsBackWhatItWrites) {
  std::mt19937 random(20260106);
  for (int turn = 0; turn < 2000; ++turn) {
    const DialogControls controls = vktest::randomControls(random, turn % 5 - 1);
    MeasureSetting record;
    ASSERT_EQ(checkControls(controls, record), kSettingOk);
    const std::string text = buildSettingFileText(controls) + "\r\n";
    ASSERT_EQ(readSettingFile(text), 0) << text << takeLog();
    ASSERT_EQ(row(), vktest::throughFile(controls)) << text;
    ASSERT_EQ(shownPreArea(row(), controls.model), controls.preArea) << text;
  }
}

TEST_F(SettingFile, ARangeOfTheOtherExcitationIsAnEmptyWordToo) {
  // What a VK-240Q file leaves in a dialog that stood at 0.5 V: its ranges are those of 2.0 V.
  DialogControls controls = controlsOf(MeasureSetting{}, kVk480Q);
  controls.channel[1].carrier = "0.5 V";
  EXPECT_EQ(readControls(controls).range[1], 4);
  EXPECT_EQ(headerValue(buildSettingFileText(controls), "Range :"), ",5000ue,5000ue,5000ue");
}

TEST_F(SettingFile, Saves) {
  // A name without an extension gets one, also beside a file that has none.
  folder_.put("plain", "other");
  const std::string dialog = "save[Saveig File][Setting File (*.set)|*.set|All Files(*.*)|*.*|]";
  DialogControls controls = controlsOf(MeasureSetting{}, kVk480Q);
  const std::string bytes = buildSettingFileText(controls) + "\r\n";
  EXPECT_FALSE(save(controls, ""));
  EXPECT_EQ(takeLog(), dialog + "[/nonexistent]|");
  EXPECT_FALSE(save(controls, inFolder("a.b/plain")));
  EXPECT_EQ(
      takeLog(),
      dialog +
          "[/nonexistent]|box[File Error][Error has occurred.|<>/a.b/plain.set][ok][exclamation]|");
  EXPECT_TRUE(save(controls, inFolder("plain")));
  EXPECT_EQ(DataFolder::bytesOf(inFolder("plain.set")), bytes);
  EXPECT_EQ(takeLog(), dialog + "[/nonexistent]|");
  EXPECT_EQ(DataFolder::bytesOf(inFolder("plain")), "other");
  EXPECT_TRUE(save(controls, inFolder("other.txt")));
  EXPECT_EQ(DataFolder::bytesOf(inFolder("other.txt")), bytes);
  takeLog();

  const std::string question = dialog +
                               "[<>/]|box[File Process][<>/plain.set|This file name is "
                               "already in use.Overwrite?][yes-no][exclamation]|";
  controls.channel[1].level = "+20.0";
  desktop_.answers = {BoxAnswer::kNo};
  EXPECT_FALSE(save(controls, inFolder("plain")));
  EXPECT_EQ(takeLog(), question);
  EXPECT_EQ(DataFolder::bytesOf(inFolder("plain.set")), bytes);
  EXPECT_TRUE(save(controls, inFolder("plain.set")));
  EXPECT_EQ(takeLog(), question);
  EXPECT_NE(DataFolder::bytesOf(inFolder("plain.set")), bytes);

  controls.channel[1].level = "much";
  EXPECT_FALSE(save(controls, inFolder("never")));
  EXPECT_EQ(takeLog(), "box[Error][Trigger Level Error][ok][information]|");
}

TEST_F(SettingFile, Loads) {
  const std::string dialog = "open[Read File][Setting File (*.set)|*.set|All Files(*.*)|*.*|]";
  folder_.put("high.set", kExample);
  folder_.put("low", kOld);
  EXPECT_FALSE(load(kVk240Q, ""));
  EXPECT_EQ(takeLog(), dialog + "[/nonexistent]|");
  EXPECT_FALSE(load(kVk240Q, inFolder("none")));
  EXPECT_EQ(
      takeLog(),
      dialog +
          "[/nonexistent]|box[File Error][File does not exist.|<>/none.set][ok][exclamation]|");
  EXPECT_EQ(row(), MeasureSetting{});

  for (const int32_t model : {kNoModel, int32_t{kVk480Qe}}) {
    EXPECT_TRUE(load(model, inFolder("high")));
    EXPECT_EQ(row().model, kVk480Q);
    EXPECT_TRUE(load(model, inFolder("low")));
    EXPECT_EQ(row().model, kVk240Q);
  }
  EXPECT_TRUE(load(kVk240Qe, inFolder("low")));
  takeLog();
  EXPECT_FALSE(load(kVk240Qe, inFolder("high.set")));
  EXPECT_EQ(takeLog(),
            dialog +
                "[<>/]|box[ﾌｧｲﾙｴﾗｰ][<>/high.set|VK-240QにVK-480Qの設定ﾌｧｲﾙは反映できません。]"
                "[ok][exclamation]|");
  EXPECT_EQ(row().model, kVk480Q);  // the row is replaced before the family is looked at
}

}  // namespace
}  // namespace vk
