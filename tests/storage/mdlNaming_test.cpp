// SPDX-License-Identifier: MIT
#include "storage/mdlNaming.h"

#include <tuple>

#include "tests/storage/card_fixture.h"

namespace {

class NamingTest : public vktest::CardTest {};

TEST_F(NamingTest, WhatTextsMayHold) {
  for (const char* text : {"", "a b.c", "测定"}) EXPECT_EQ(vk::checkFileName(text), 0) << text;
  for (const char c : std::string("\\/:*?\"<>|")) {
    EXPECT_EQ(vk::checkFileName(std::string("a") + c), 1) << c;
  }
  const std::string different =
      "box[SERIES Error][Different number of series. (Specify series name by comma space.)]"
      "[ok][exclamation]\n";
  const std::string invalid = "box[SERIES Error][Invalid　value][ok][exclamation]\n";
  for (const auto& [text, commas, log] : {std::tuple{"a, b ,c", 2, std::string()},
                                          {"a", 0, ""},
                                          {",b,c", 2, invalid},
                                          {"a,b,  ", 2, invalid},
                                          {"", 0, invalid},
                                          {"a,b", 2, different},
                                          {",,", 1, different}}) {
    EXPECT_EQ(vk::checkSeriesText(text, commas), log.empty() ? 0 : 1) << text;
    EXPECT_EQ(takeLog(), log) << text;
  }
}

TEST_F(NamingTest, TheCheckedRowsAreNamedAndNamesGoBackToThemOnly) {
  vk::NamingList list;
  EXPECT_FALSE(vk::prepareNaming(reading, list));
  for (const char* stem : {"A", "B", "C"}) addFile(stem);
  reading.files[0].checked = false;
  reading.files[0].nameChanged = true;
  reading.files[1].saveFileName = "NEW.DAT";
  reading.files[2].seriesText = "";
  EXPECT_TRUE(vk::prepareNaming(reading, list));
  EXPECT_EQ(list.rows,
            (std::vector<vk::NamingRow>{{"NEW.DAT", "CH1,CH2", false}, {"C.DAT", "", false}}));
  vk::activateNaming(list);
  EXPECT_FALSE(vk::setAllFileNames(list, "a:"));
  EXPECT_FALSE(vk::setAllSeries(list, "p"));
  vk::setAllFileNames(list, "n");
  vk::setAllSeries(list, "p,q");
  vk::showSaveNames(reading);  // after a cancel
  EXPECT_EQ(reading.files[1].rowText, "NEW.DAT");
  vk::copyNamesBack(list, reading);
  vk::showSaveNames(reading);
  std::string rows;
  for (const auto& file : reading.files) {
    rows += file.cardFileName + " " + file.rowText + " " + file.seriesText + "\n";
  }
  EXPECT_EQ(rows, "A.DAT A.DAT CH1,CH2\nB.DAT nNEW.DAT p,q\nC.DAT nC.DAT p,q\n");
  reading.files[1].seriesText = "";
  EXPECT_FALSE(vk::prepareNaming(reading, list));
  vk::checkAllRows(reading, false);
  EXPECT_FALSE(vk::prepareNaming(reading, list));
}

TEST_F(NamingTest, TypedSeriesNamesTakeTheEncodingOfTheirHeader) {
  for (const char* stem : {"A", "B"}) addFile(stem);
  reading.files[1].latin1 = true;
  vk::NamingList list;
  EXPECT_TRUE(vk::prepareNaming(reading, list));
  vk::activateNaming(list);
  const std::string refused = "box[SERIES Error][Invalid　value][ok][exclamation]\n";
  const auto series = [&] { return list.rows[0].series + "|" + list.rows[1].series; };
  const auto enter = [&](std::size_t row, const char* text) {
    vk::selectNamingRow(list, row);
    const bool taken = vk::enterSeriesText(list, text);
    return (taken ? "1" : "0") + takeLog() + series();
  };
  EXPECT_EQ(enter(0, "ひ,ü"), "1ひ,ü|CH1,CH2");
  EXPECT_EQ(enter(1, "Länge,µ"), "1ひ,ü|L\xE4nge,\xB5");
  EXPECT_EQ(enter(1, "ひ,b"), "0" + refused + "ひ,ü|L\xE4nge,\xB5");
  // One row that cannot take the text keeps it from all.
  EXPECT_FALSE(vk::setAllSeries(list, "a,ひ"));
  EXPECT_EQ(takeLog() + series(), refused + "ひ,ü|L\xE4nge,\xB5");
  EXPECT_TRUE(vk::setAllSeries(list, "ä,b"));
  EXPECT_EQ(series(), "ä,b|\xE4,b");
}

}  // namespace
