// SPDX-License-Identifier: MIT
#include "storage/mdlNaming.h"

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
  const struct {
    const char* text;
    int commas;
    std::string log;
  } rows[] = {{"a, b ,c", 2, ""},    {"a", 0, ""},     {",b,c", 2, invalid}, {"a,b,  ", 2, invalid},
              {"a,b", 2, different}, {"", 0, invalid}, {",,", 1, different}};
  for (const auto& row : rows) {
    EXPECT_EQ(vk::checkSeriesText(row.text, row.commas), row.log.empty() ? 0 : 1) << row.text;
    EXPECT_EQ(takeLog(), row.log) << row.text;
  }
}

TEST_F(NamingTest, TypedSeriesNamesTakeTheEncodingOfTheirHeader) {
  vk::NamingList list;
  EXPECT_FALSE(vk::prepareNaming(reading, list));
  for (const char* stem : {"A", "B"}) addFile(stem);
  reading.files[1].latin1 = true;
  EXPECT_TRUE(vk::prepareNaming(reading, list));
  vk::activateNaming(list);
  EXPECT_FALSE(vk::setAllFileNames(list, "a:") || vk::setAllSeries(list, "p"));
  takeLog();
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
  EXPECT_FALSE(vk::enterFileName(list, "ひ") || vk::setAllFileNames(list, "ひ"));
  EXPECT_TRUE(vk::enterFileName(list, "ü"));
  // One row that cannot take the text keeps it from all.
  EXPECT_FALSE(vk::setAllSeries(list, "a,ひ"));
  EXPECT_EQ(takeLog() + series(), refused + "ひ,ü|L\xE4nge,\xB5");
  EXPECT_TRUE(vk::setAllSeries(list, "ä,b"));
  EXPECT_EQ(series(), "ä,b|\xE4,b");
  // Without any series there is nothing to name.
  reading.files[0].seriesText = "";
  EXPECT_FALSE(vk::prepareNaming(reading, list));
}

}  // namespace
