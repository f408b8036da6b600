// SPDX-License-Identifier: MIT
#include "storage/mdlCardReading.h"

#include "tests/storage/card_fixture.h"

namespace {

using vktest::cardHeader;
using vktest::library;

const std::string kUnreadable =
    "box[Header File Error][Cannot read Header File.][ok][exclamation]\n";

class CardOpeningTest : public vktest::CardTest {
 protected:
  CardOpeningTest() {
    opening.showStatus = [this](const std::string& title, const std::string& text) {
      note("status [" + title + "][" + text + "]");
    };
    opening.setProgress = [this](double part) { note("progress " + std::to_string(part)); };
    opening.addRow = [this](std::size_t row) { note("row " + std::to_string(row)); };
    opening.closeStatus = [this] { note("close"); };
  }
  vk::CardOpeningView opening;
};

TEST_F(CardOpeningTest, ConfirmsEveryHeaderAndKeepsTheRowOfABadOne) {
  vk::gCardDirectory = {{"DAT00001.DAT,65538,2026/01/05 09:30:00,00320", 65538, 320},
                        {"BAD.DAT,4,2026/01/06 10:00:02,00100", 4, 100},
                        {"HUGE.DAT,0,2026/01/07 00:00:00,4294967295", 0, 4294967295},
                        {"DAT4.DAT,128,2026/01/08 00:00:00,00320", 128, 320}};
  library().block(cardHeader());
  library().block(std::string(128, 'x'));
  library().block(cardHeader("1"));
  EXPECT_TRUE(vk::openCard(reading, opening));
  EXPECT_EQ(library().takeTranscript(),
            "write(1,HFLDAT00001)\nreadB(1,320)\nwrite(1,HFLBAD)\nreadB(1,128)\n"
            "write(1,HFLDAT4)\nreadB(1,320)\n");
  EXPECT_EQ(takeLog(),
            "status [Confirm Headder File][Confirming header file of instrument.]\n"
            "progress 0.000000\nrow 0\nprogress 0.250000\nrow 1\n" +
                kUnreadable + "progress 0.500000\nrow 2\n" +
                "box[USB Error][Unexpected communication error has occurred.][ok][exclamation]\n" +
                kUnreadable + "progress 0.750000\nrow 3\nprogress 1.000000\nclose\n");
  std::string rows;
  for (const auto& file : reading.files) {
    rows += file.saveFileName + ";" + file.sizeText + ";" + file.date + ";" + file.headerSizeText +
            ";" + file.seriesText + "\n";
  }
  EXPECT_EQ(rows,
            "DAT00001.DAT;65538;2026/01/05 09:30:00;00320;CH1,CH2\n"
            "BAD.DAT;4;2026/01/06 10:00:02;00100;\n"
            "HUGE.DAT;0;2026/01/07 00:00:00;4294967295;\n"
            "DAT4.DAT;128;2026/01/08 00:00:00;00320;CH1,CH2\n");
  EXPECT_FALSE(reading.busy);
  EXPECT_EQ(desktop.yieldCount, 4);
}

TEST_F(CardOpeningTest, EmptyCardAndEndingProgram) {
  EXPECT_FALSE(vk::openCard(reading, opening));
  EXPECT_EQ(takeLog(), "close\n");
  vk::gCardDirectory = {{"A.DAT,2,d,00320", 2, 320}, {"B.DAT,2,d,00320", 2, 320}};
  serve(0);
  endInYield(1);
  EXPECT_TRUE(vk::openCard(reading, opening));
  EXPECT_EQ(library().takeTranscript(), "write(1,HFLA)\nreadB(1,320)\n");
}

TEST_F(CardOpeningTest, AClickShowsTheHeaderOncePerName) {
  addFile("A");
  addFile("B", 2, 299);
  addFile("C", 2, 300);
  serve(0);
  EXPECT_EQ(vk::clickCardRow(reading, 0).text, cardHeader());
  EXPECT_EQ(reading.headerText, cardHeader() + '\0');
  for (const std::size_t row : {0, 1, 7}) EXPECT_FALSE(vk::clickCardRow(reading, row).shown);
  EXPECT_EQ(library().takeTranscript(), "write(1,HFLA)\nreadB(1,320)\n");
  EXPECT_EQ(takeLog(), "");
  // The 300 bytes are too few for this header: it is shown as far as it came.
  serve(0);
  EXPECT_EQ(vk::clickCardRow(reading, 2).text, cardHeader().substr(0, 301));
  EXPECT_EQ(takeLog(), kUnreadable);
  vk::selectCardTab(reading, vk::kTabBinary);
  EXPECT_FALSE(vk::clickCardRow(reading, 0).shown);
  vk::selectCardTab(reading, vk::kTabWave);
  reading.showingHeader = true;
  EXPECT_FALSE(vk::clickCardRow(reading, 0).shown);
  EXPECT_EQ(library().takeTranscript(), "write(1,HFLC)\nreadB(1,320)\n");
}

}  // namespace
