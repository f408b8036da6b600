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
  const auto files = vk::confirmHeaders(reading.serial, vk::gCardDirectory, view);
  EXPECT_EQ(library().takeTranscript(),
            "write(1,HFLDAT00001)\nreadB(1,320)\nwrite(1,HFLBAD)\nreadB(1,128)\n"
            "write(1,HFLDAT4)\nreadB(1,320)\n");
  EXPECT_EQ(takeLog(),
            "25%\n" + kUnreadable + "50%\n" +
                "box[USB Error][Unexpected communication error has occurred.][ok][exclamation]\n" +
                kUnreadable + "75%\n100%\n");
  std::string rows;
  for (const auto& file : files) {
    rows += file.saveFileName + ";" + file.sizeText + ";" + file.date + ";" + file.headerSizeText +
            ";" + file.seriesText + (file.latin1 ? ";latin\n" : "\n");
  }
  EXPECT_EQ(rows,
            "DAT00001.DAT;65538;2026/01/05 09:30:00;00320;CH1,CH2\n"
            "BAD.DAT;4;2026/01/06 10:00:02;00100;\n"
            "HUGE.DAT;0;2026/01/07 00:00:00;4294967295;\n"
            "DAT4.DAT;128;2026/01/08 00:00:00;00320;CH1,CH2;latin\n");
  EXPECT_EQ(desktop.yieldCount, 4);
}

TEST_F(CardOpeningTest, AnEndingProgramStopsConfirming) {
  serve(0);
  endInYield(1);
  const std::vector<vk::CardFile> two = {{"A.DAT,2,d,00320", 2, 320}, {"B.DAT,2,d,00320", 2, 320}};
  EXPECT_EQ(vk::confirmHeaders(reading.serial, two, view).size(), 1U);
  EXPECT_EQ(library().takeTranscript(), "write(1,HFLA)\nreadB(1,320)\n");
}

TEST_F(CardOpeningTest, AClickShowsTheHeaderOncePerName) {
  addFile("A");
  addFile("B", 2, 299);
  addFile("C", 2, 300);
  serve(0);
  EXPECT_EQ(vk::clickCardRow(reading, 0).text, cardHeader());
  for (const std::size_t row : {0, 1, 7}) EXPECT_FALSE(vk::clickCardRow(reading, row).shown);
  EXPECT_EQ(library().takeTranscript(), "write(1,HFLA)\nreadB(1,320)\n");
  EXPECT_EQ(takeLog(), "");
  // The 300 bytes are too few for this header: it is shown as far as it came.
  serve(0);
  EXPECT_EQ(vk::clickCardRow(reading, 2).text, cardHeader().substr(0, 301));
  EXPECT_EQ(takeLog(), kUnreadable);
  vk::selectCardTab(reading, vk::kTabBinary);
  EXPECT_FALSE(vk::clickCardRow(reading, 0).shown);
  EXPECT_EQ(library().takeTranscript(), "write(1,HFLC)\nreadB(1,320)\n");
}

}  // namespace
