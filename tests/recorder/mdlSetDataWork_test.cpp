// SPDX-License-Identifier: MIT
#include "recorder/mdlSetDataWork.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "base/mdlText.h"
#include "link/mdlBoxSetting.h"
#include "link/mdlExchange.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlConditionRules.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_library.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::expectAnswers;
using vktest::library;

constexpr int32_t kSerial = 1000001;

template <typename T>
std::string joined(const char* name, const PerChannel<T>& values) {
  std::string text = name;
  for (std::size_t i = 1; i <= kChannels; ++i) {
    text += (i == 1 ? " " : ",") + textOf(static_cast<float>(values[i]));
  }
  return text + "\n";
}

/// What the settings string decides of a record, a line per field.
std::string conditionsOf(const MeasureSetting& record) {
  return "mode " + textOf(record.channelMode) + "\n" + joined("range", record.range) +
         joined("filter", record.filter) + "trigger " + textOf(record.triggerMode) + "\n" +
         joined("slope", record.triggerSlope) + joined("level", record.triggerLevel) + "time " +
         textOf(record.sampling) + "\npre " + textOf(record.preArea) + "\nsize " +
         textOf(record.dataSize) + "\n" + joined("carrier", record.carrier);
}

class SetDataWork : public ::testing::Test {
 protected:
  void SetUp() override {
    library() = vktest::ScriptedLibrary{};
    gLastReply.clear();
    place(kVk480Q);
  }
  void TearDown() override { resetBoxTable(); }

  static MeasureSetting& row() { return gBoxTable[2]; }
  /// One box in row 2, as a scan leaves it before it reads the conditions.
  static void place(int16_t model) {
    resetBoxTable();
    gBoxTable[1].serial = 1000000;
    gBoxTable[1].handle = 1;
    row().serial = kSerial;
    row().handle = 2;
    row().model = model;
    row().balance[3] = 1;
    row().unit.fill(36);
    row().coeff.fill(7.0F);
  }

  /// Asks with positions and what is written there over the default string; the answer is the
  /// fields that then differ from those of the default string, "refused" when the row stays.
  static std::string decoded(int16_t model, const std::string& question) {
    std::string text(modelFamily(model).defaultSet);
    place(model);
    EXPECT_EQ(decodeSettingString(kSerial, text), 0);
    std::istringstream usual(conditionsOf(row()));
    std::istringstream parts(question);
    for (std::string part; std::getline(parts, part, ';');) {
      const auto position = static_cast<std::size_t>(std::stoi(part));
      part.erase(0, part.find(' ') + 1);
      text.replace(position - 1, part.size(), part);
    }
    place(model);
    const MeasureSetting before = row();
    if (decodeSettingString(kSerial, text) != 0) return row() == before ? "refused" : "changed";
    std::istringstream fields(conditionsOf(row()));
    std::string changed;
    for (std::string field, was; std::getline(fields, field) && std::getline(usual, was);) {
      if (field != was) changed += (changed.empty() ? "" : " ") + field;
    }
    return changed;
  }

  vktest::FakeDesktop desktop_;
};

TEST_F(SetDataWork, DecodesTheStringsOfBothFamilies) {
  EXPECT_EQ(conditionsOf({}),
            "mode 2\nrange 4,4,4,4\nfilter 6,6,6,6\ntrigger 1\nslope 0,2,2,2\n"
            "level 10,10,10,10\ntime 2\npre 0\nsize 7\ncarrier 2,2,2,2\n");
  for (const int16_t model : {kVk240Qe, kVk480Q}) {
    place(model);
    auto expected = gBoxTable;  // nothing else of the row moves, nor any other row
    MeasureSetting& box = expected[2];
    const ModelFamily& family = modelFamily(model);
    box.filter.fill(family.excitation ? 6 : 4);
    box.carrier.fill(family.excitation ? 2 : 0);
    box.sampling = 5;
    box.triggerLevel.fill(0.0F);
    box.triggerLevel[1] = 10.0F;
    EXPECT_EQ(decodeSettingString(kSerial, std::string(family.defaultSet) + "\r\n   "), 0);
    EXPECT_EQ(conditionsOf(row()), conditionsOf(box));
    EXPECT_EQ(gBoxTable, expected);
  }
}

TEST_F(SetDataWork, DecodesEachField) {
  // The sign behind "M" is lost; a tie of the pre-area goes to the even tenth; unknown words leave
  // the first entry; five characters of a level shift the rest.
  expectAnswers(R"(
1 1=mode 0|2 03042334=range 2,3,10,23|2 99=refused|2 20=refused|10 01020308=filter 0,1,2,7
|12 PS=filter 6,0,6,6|18 S=trigger 0|18 F=trigger 2|18 X=trigger 0
|19 DDUX+010P105-020-100=slope 1,1,0,0 level 10,10.5,-20,-100
|19 DDDDN000N999P005+099=slope 2,2,1,1 level 0,0,0.5,99|23 M105=level 10.5,0,0,0
|23 +1.5=level 1.5,0,0,0|23 X123=level 0,0,0,0|23 +101=refused|23 +1x0=refused|27 P1 0=refused
|23 P-004N000N000N000200U000128K2222=refused|39 001S=time 16|39 005U=time 0|39 999X=time 0
|39 100U000001K=refused|43 050=pre 5|43 045=pre 4|43 035=pre 4|43 060=refused|43 120=refused
|43 -20=refused|43 1E9=refused|43 9E5=refused|43 0x0=refused|43 070004M=pre 7 size 13
|46 128k=size 0|50 0121=carrier 0,1,2,1|53 3=refused|50  =refused)",
                [](const std::string& question) { return decoded(kVk480Qe, question); });
  expectAnswers(
      "2 05102005=range 4,5,6,4|4 06=refused|10 031030PS=filter 1,2,3,4"
      "|10 07=filter 0,4,4,4|23 M105P105=slope 0,0,2,2 level 10.5,10.5,0,0|23 -020=level -20,0,0,0",
      [](const std::string& question) { return decoded(kVk240Qe, question); });
  // The full pre-area is called "Max" from a size on. The check would call it so earlier.
  expectAnswers(
      "1 1;43 100512K=mode 0 pre 10 size 9|1 1;43 100001M=mode 0 pre 11 size 10|"
      "1 2;43 100256K=mode 1 pre 10 size 8|1 2;43 100512K=mode 1 pre 11 size 9|"
      "43 100128K=pre 10|43 100256K=pre 11 size 8",
      [](const std::string& question) { return decoded(kVk480Q, question); });
}

TEST_F(SetDataWork, FailsWithoutANumberOrABox) {
  // The words behind the pre-area may be missing, but no excitation.
  for (const auto& [model, needed] : {std::pair(kVk480Q, 53U), std::pair(kVk240Q, 43U)}) {
    place(static_cast<int16_t>(model));
    for (std::size_t length = 0; length < 49; ++length) {
      const std::string text(modelFamily(model).defaultSet.substr(0, length));
      EXPECT_EQ(decodeSettingString(kSerial, text), length < needed ? 1 : 0) << text;
    }
  }
  const auto before = gBoxTable;
  for (const int32_t serial : {int32_t{1234567}, kNoSerial}) {
    EXPECT_EQ(decodeSettingString(serial, kDefaultSetLow), 1);
    EXPECT_EQ(decodeUnitList(serial, kDefaultUnits), 1);
    EXPECT_EQ(decodeCoeffList(serial, kDefaultCoeffs), 1);
  }
  EXPECT_EQ(gBoxTable, before);
}

TEST_F(SetDataWork, DecodesListsAsFarAsTheyGo) {
  const auto told = [](std::string question) {
    std::replace(question.begin(), question.end(), '<', '\r');
    std::replace(question.begin(), question.end(), '>', '\n');
    place(kVk480Q);
    const bool units = question[0] == 'u';
    const std::string list = question.substr(2);
    const int32_t result = units ? decodeUnitList(kSerial, list) : decodeCoeffList(kSerial, list);
    const std::string stored = units ? joined("", row().unit) : joined("", row().coeff);
    return textOf(result) + stored.substr(0, stored.size() - 1);
  };
  // "<" and ">" are the line end. Unknown units stay as they were, blanks are not cut, a bare line
  // feed costs the character before it.
  expectAnswers(R"(
u ue,ue,ue,ue=0 0,0,0,0|u  ,###,%,N/mm2<>=0 29,31,25,37|u mm,cm,m=1 1,2,3,36|u mm,,m,C=1 1,36,36,36
|u mm,xx,MM,C=0 1,36,36,4|u mm,cm,m,C     =0 1,2,3,36|u mm,cm,m,C,kN=0 1,2,3,4
|u mm,cm,m,Cx>=0 1,2,3,4|u mm,cm,m,>=1 1,2,3,36|u mm,cm,m,<>=0 1,2,3,36
|u mm<>,cm<>xx,m,C=0 1,2,3,4|u =1 36,36,36,36
|c 1.000000,-2.5,1E-3,0.00001<>    =0 1,-2.5,0.001,0.00001|c -0.00001,2,3, 4 =0 -0.00001,2,3,4
|c 1,2,0,4=1 1,2,7,7|c 1,0.000009,3,4=1 1,7,7,7|c 99999999,1E30,1,1=0 1E+08,1E+30,1,1
|c 1,1E39,1,1=1 1,7,7,7|c abc,1,1,1=1 7,7,7,7|c 1,2,3=1 1,2,3,7|c 1,2,3,4<<>=1 1,2,3,7)",
                told);
}

TEST_F(SetDataWork, ReadsTheThreePartsAndCountsWhatCouldNotBeRead) {
  const std::string good[] = {std::string(kDefaultSetHigh), "mm,cm,m,C\r\n", "1,2,3,4\r\n"};
  // A letter per part: good, bad, lost. The result, the boxes shown, the units then. A lost part
  // leaves the one before it to be read.
  expectAnswers(
      "ggg=0 0 1,2,3,4|bbb=3 0 36,36,36,36|bgg=1 0 1,2,3,4|lgg=1 1 1,2,3,4"
      "|glg=1 1 36,36,36,36|ggl=1 1 1,2,3,4|lll=3 3 36,36,36,36",
      [&](const std::string& kinds) {
        SetUp();
        desktop_.log.clear();
        gLastReply = "01 26/01/05 09:30:00 00 0000 1000001";
        for (std::size_t i = 0; i < 3; ++i) {
          if (kinds[i] == 'l') library().fail(-1005);
          if (kinds[i] != 'l') library().reply(kinds[i] == 'g' ? good[i] : "ERR,21");
        }
        const int32_t result = readMeasureSetting(kSerial);
        EXPECT_EQ(library().takeTranscript(),
                  "write(2,LST0)\nread(2)\nwrite(2,LST1)\nread(2)\nwrite(2,LST2)\nread(2)\n");
        EXPECT_EQ(row().sampling, kinds[0] == 'g' ? 5 : 2);
        const std::string units = joined("", row().unit);
        return textOf(result) + " " + std::to_string(desktop_.log.size()) +
               units.substr(0, units.size() - 1);
      });
}

TEST_F(SetDataWork, WritesTheDefaultsOfTheFamily) {
  for (const int16_t model : {kVk240Qe, kVk480Q}) {
    place(model);
    library().replies = {{"ERR,21", 80}, {"END", 80}, {"?", 80}};
    EXPECT_EQ(writeDefaultSetting(kSerial), 21 + 0 + 100);
    EXPECT_EQ(library().takeTranscript(),
              "write(2,SET" +
                  std::string(model == kVk240Qe
                                  ? "405050505PSPSPSPSCUUUU+010N000N000N000200U000128K"
                                  : "40505050507070707CUUUU+010N000N000N000200U000128K2222") +
                  ")\nread(2)\nwrite(2,UNTue,ue,ue,ue)\nread(2)\n"
                  "write(2,CEF1.000000,1.000000,1.000000,1.000000)\nread(2)\n");
  }
  EXPECT_EQ(desktop_.log.size(), 4U);
}

TEST(LevelField, FollowsSlopeAndFamily) {
  // The slope and the text of the level box; the fields of the slow and of the fast family. Without
  // its sign a text is not seen as 100.
  expectAnswers(
      R"(
0 +10.5=+010 P105|1 -10.5=-010 M105|0 +11.5=+012 P115|0 +100.0=+100 +100|1 -100.0=-100 -100
|0 -99.9=-100 M999|0 0.0=+000 P000|0 -0.5=+000 P-005|0 -0.6=-001 M006|0 100.0=+100 P1000
|2 abc=N000 N000|0 =none none|1 abc=none none)",
      [](const std::string& question) {
        const auto field = [&](int32_t family) {
          return buildLevelField(family, question[0] - '0', question.substr(2)).value_or("none");
        };
        EXPECT_EQ(field(kVk240Q), field(kVk240Qe));
        EXPECT_EQ(field(kVk480Q), field(kNoModel));
        return field(kVk240Q) + " " + field(kVk480Q);
      });
}

TEST_F(SetDataWork, SpellsARecord) {
  const std::string text = "20306072402030401SDUUUM205+100P000N000001M100512K2122";
  EXPECT_EQ(decodeSettingString(kSerial, text), 0);
  PerChannel<std::string> texts;
  texts[1] = "-20.5", texts[2] = "+100.0", texts[3] = "0.0", texts[4] = "abc";  // not in use
  EXPECT_EQ(buildSettingString(row(), texts), text);
  row().model = kNoModel;
  EXPECT_EQ(buildSettingString(row(), texts), text);
  row().model = kVk240Qe;  // what the family lacks is sent as 5000 ue and pass-through
  EXPECT_EQ(buildSettingString(row(), texts), "205102005031030PSSDUUU-020+100+000N000001M100512K");
  texts[3] = "abc";
  EXPECT_EQ(buildSettingString(row(), texts), std::nullopt);
}

}  // namespace
}  // namespace vk
