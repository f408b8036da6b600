// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorDialog.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

TEST(MonitorDialog, EntriesAreCheckedByTheirKind) {
  // Serial, limit, scale, start of a dial, caption.
  const char* const table = R"(1=yyyyy|0000001=yyyyy|9999999=yyyyy|10000000=nyyyy|12345678=nyyyy
|0=nynyy|-5=nyyyy|0.4=nyyyy|1e3=yyyyy| 1,000 =yyyyn|1e-60=nynyy|3000000000=nyyny
|1e39=nnnny|=nnnny|abc=nnnny|1 2=nnnny)";
  vktest::expectAnswers(table, [](const std::string& text) {
    std::string answer;
    for (const auto rule : {EntryRule::kSerial, EntryRule::kLimit, EntryRule::kScale,
                            EntryRule::kDialStart, EntryRule::kCaption})
      answer += validEntry(rule, text) ? 'y' : 'n';
    return answer;
  });
}

TEST(MonitorDialog, EntriesThatDoNotGoTogetherAreToldSo) {
  vktest::FakeDesktop desk;
  EXPECT_TRUE(limitsAgree("0.5", "-1") && dialEndsDiffer("-10", "10"));
  EXPECT_EQ(desk.takeLog(), "");
  EXPECT_FALSE(limitsAgree("-1", "1"));
  EXPECT_FALSE(dialEndsDiffer("1,000", "1000"));
  sayInvalid();
  EXPECT_EQ(desk.takeLog(),
            "box[入力ｴﾗｰ][上限値より下限値を小さい値にしてください。][ok][information]\n"
            "box[入力ｴﾗｰ][+ｽｹｰﾙと-ｽｹｰﾙは同じ値に設定できません。][ok][exclamation]\n"
            "box[Input Error][Invalid][ok][exclamation]\n");
  EXPECT_FALSE(limitsAgree("5", "5.0"));
  EXPECT_FALSE(dialEndsDiffer("2", "1.5")) << "a dial starts at a whole number";
}

TEST(MonitorDialog, ListsOfferWhatThereIs) {
  resetBoxTable();
  gBoxTable[2].serial = 4810021;
  gBoxTable[3].serial = 52;
  gBoxTable[3].handle = -1001;
  gBoxTable[9].serial = 77;  // of a setting file, no box
  EXPECT_EQ(serialTexts(), (std::vector<std::string>{"4810021", "0000052"}));
  EXPECT_EQ(channelTexts(), (std::vector<std::string>{"Ch 1", "Ch 2", "Ch 3", "Ch 4"}));
  EXPECT_EQ(averageTexts().size(), 100U);
  EXPECT_EQ(averageTexts().back(), "100");
  EXPECT_EQ(sampleText(3), "0.000");
  resetBoxTable();
}

TEST(MonitorDialog, RecordsFromAFileMayHoldAnything) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const double numbers[] = {-3, 0, 0.4, 0.6, 1.5, 2.5, 2.6, 3, 4, 1e30, kNone};
  std::string answers;
  for (const double number : numbers) answers += textOf(listIndex(number, 4)) + " ";
  EXPECT_EQ(answers, "0 0 0 1 2 2 3 3 3 3 0 ");
  EXPECT_EQ(numberText(std::numeric_limits<float>::infinity(), 1000.0F), "1000");
  EXPECT_EQ(numberText(0.25F, 1000.0F), "0.25");
}

}  // namespace
}  // namespace vk
