// SPDX-License-Identifier: MIT
#include "storage/mdlCardReading.h"

#include "tests/storage/card_fixture.h"

namespace {

using vktest::cardHeader;
using vktest::library;

const std::string kUnreadable =
    "box[Header File Error][Cannot read Header File.][ok][exclamation]\n";

class CardOpeningTest : public vktest::CardTest {};

TEST_F(CardOpeningTest, ConfirmsEveryHeaderAndKeepsTheRowOfABadOne) {
  vk::gCardDirectory = {{"DAT00001.DAT,65538,2026/01/05 09:30:00,00320", 65538, 320},
                        {"BAD.DAT,4,2026/01/06 10:00:02,00100", 4, 100},
                        {"HUGE.DAT,0,2026/01/07 00:00:00,4294967295", 0, 4294967295},
                        {"DAT4.DAT,128,2026/01/08 00:00:00,00320", 128, 320}};
  library().block(cardHeader());
  library().block(std::string(128, 'x'));
  std::string latin = cardHeader("1");
  latin[9] = '\xE9';
  library().block(latin);
  std::string rows;
  for (const auto& file : vk::confirmHeaders(reading.serial, vk::gCardDirectory, view)) {
    rows += file.saveFileName + ";" + file.seriesText + (file.latin1 ? ";latin " : " ");
  }
  EXPECT_EQ(rows, "DAT00001.DAT;CH1,CH2 BAD.DAT; HUGE.DAT; DAT4.DAT;CH1,CH2;latin ");
  EXPECT_EQ(library().takeTranscript(),
            "write(1,HFLDAT00001)\nreadB(1,320)\nwrite(1,HFLBAD)\nreadB(1,128)\n"
            "write(1,HFLDAT4)\nreadB(1,320)\n");
  EXPECT_EQ(takeLog(),
            "25%\n" + kUnreadable + "50%\n" +
                "box[USB Error][Unexpected communication error has occurred.][ok][exclamation]\n" +
                kUnreadable + "75%\n100%\n");
  serve(0);
  endInYield(1);
  EXPECT_EQ(vk::confirmHeaders(reading.serial, vk::gCardDirectory, view).size(), 1U);
}

TEST_F(CardOpeningTest, AHeaderIsShownAsFarAsItCame) {
  addFile("A", 2, 299);
  addFile("B", 2, 300);
  EXPECT_FALSE(vk::clickCardRow(reading, 0).shown || vk::clickCardRow(reading, 7).shown);
  serve(0);
  EXPECT_EQ(vk::clickCardRow(reading, 1).text, cardHeader().substr(0, 301));
  EXPECT_EQ(takeLog(), kUnreadable);
  vk::selectCardTab(reading, vk::kTabBinary);
  EXPECT_FALSE(vk::clickCardRow(reading, 1).shown);
}

}  // namespace
