// SPDX-License-Identifier: MIT
#include "tests/storage/card_fixture.h"
#include "tests/support/file_limit.h"

namespace {

using vktest::cardHeader;
using vktest::library;
using vktest::wave;

const std::string kStart = "0%\nlabel DAT00001.DAT  Reading data file from the VK-480Q...\n";
const std::string kEnd = "label DAT00001.DAT  reading ended.\n";
const std::string kRequests =
    "write(1,HFLDAT00001.DAT.HED)\nreadB(1,320)\nwrite(1,DATDAT00001.DAT)\n";

class CardTransferTest : public vktest::CardTest {
 protected:
  vk::CardFetched fetch(vk::ReadKind kind) {
    const auto& target = kind == vk::kReadToSave ? reading.folder[0] : reading.temporaryFolder;
    shown = -1;
    return vk::readDataFile({reading.serial, reading.files[0], kind, target}, view);
  }
  int32_t save() { return fetch(vk::kReadToSave).result; }
  /// What a transfer shows that fails after its start, over an old file, and the files it leaves.
  std::string failed(int64_t size, const std::string& stem = "DAT00001") {
    reading.files.clear();
    desktop.yieldCount = 0;
    place.put("DAT00001.dat", "old");
    addFile(stem, size);
    EXPECT_EQ(save(), vk::kCardFailed);
    EXPECT_FALSE(desktop.hourglass);
    library().blocks.clear();
    const std::string log = takeLog();
    return log.substr(log.find("Q...\n") + 5) + listing() + "yields " +
           std::to_string(desktop.yieldCount);
  }
};

TEST_F(CardTransferTest, SizesInBlocksAndTail) {
  // Halves of a percent go to the even neighbour.
  const std::tuple<std::size_t, std::string, std::string> rows[] = {
      {0, "", ""},
      {65536, "65536 ", ""},
      {131172, "65536 65536 128 ", "50%\n"},
      {524288, "65536 65536 65536 65536 65536 65536 65536 65536 ",
       "12%\n25%\n38%\n50%\n62%\n75%\n88%\n"}};
  for (const auto& [size, reads, percents] : rows) {
    startOver();
    addFile("DAT00001", static_cast<int64_t>(size));
    // Without a series from the opening the header's own stays.
    reading.files[0].seriesText.clear();
    serve(size);
    EXPECT_EQ(save(), vk::kCardOk);
    std::string transcript = kRequests;
    std::istringstream counts(reads);
    for (std::string count; counts >> count;) transcript += "readB(1," + count + ")\n";
    EXPECT_EQ(library().takeTranscript(), transcript);
    EXPECT_EQ(takeLog(), kStart + percents + "100%\n" + kEnd);
    EXPECT_TRUE(saved("DAT00001.dat") == wave(size)) << size;
    // The blanks behind the first value go.
    EXPECT_EQ(saved("DAT00001.hed"),
              "DATASET DAT00001" + cardHeader().substr(cardHeader().find("\r\n")));
  }
  // A tail of no bytes writes what the buffer holds.
  reading.files[0].size = 65600;
  serve(65536);
  library().blocks.push_back({"", 0});
  EXPECT_EQ(save(), vk::kCardOk);
  EXPECT_TRUE(saved("DAT00001.dat") == wave(65536) + wave(64));
}

TEST_F(CardTransferTest, ARenamedFileIsStillFetchedByItsCardName) {
  addFile("DAT00001", 65538);
  reading.files[0].saveFileName = "Größe.C.DAT";
  reading.files[0].seriesText = "L\xE4nge,right";
  // The header is in Latin-1; its new names get there, too.
  std::string header = cardHeader();
  header.replace(header.find("CH1"), 1, "\xC4");
  serve(65538, header);
  // The description is its own: what a yield does to the window's rows changes nothing.
  desktop.yields.assign(7, [&] {
    EXPECT_TRUE(desktop.hourglass);
    reading.files[0] = {};
  });
  EXPECT_EQ(save(), vk::kCardOk);
  EXPECT_FALSE(desktop.hourglass);
  EXPECT_EQ(library().takeTranscript(), kRequests + "readB(1,65536)\nreadB(1,64)\n");
  EXPECT_EQ(listing(), "Größe.C.dat 65538\nGröße.C.hed 241\n");
  EXPECT_TRUE(readable(saved("Größe.C.hed"))
                  .starts_with("DATASET Gr\xF6\xDF"
                               "e.C|VERSION 1|SERIES L\xE4nge,right|DATE 01-05"));
}

TEST_F(CardTransferTest, ForCsvAndViewThePairIsTemporaryAndTheHeaderStaysAsRead) {
  addFile("DAT00001");
  reading.files[0].seriesText = "edited";
  // A byte that is not UTF-8 comes back as it is.
  std::string header = cardHeader();
  header[9] = '\xE9';
  vk::WaveOpenRequest expected;
  expected.fileName[0] = (folder / "tmp" / "2026_01_05_09_30_00").string();
  expected.channelList[0] = "1,2";
  expected.seriesInFile[0] = 2;
  expected.firstDataNumber = 1;
  expected.lastDataNumber = 16384;
  expected.rate = 1000;
  expected.startStamp = "01-05-2026,09:30:00";
  for (const auto kind : {vk::kReadForCsv, vk::kReadToView}) {
    serve(4, header);
    const vk::CardFetched fetched = fetch(kind);
    EXPECT_EQ(takeLog(), kStart + "100%\n" + kEnd);
    EXPECT_EQ(readable(std::exchange(vk::gTempFileList, "")),
              "<>/tmp/2026_01_05_09_30_00.dat|<>/tmp/2026_01_05_09_30_00.hed|");
    // One character more than the file has, and the writer's line end.
    EXPECT_TRUE(saved("tmp/2026_01_05_09_30_00.hed") == header + '\0' + "\r\n");
    EXPECT_TRUE(saved("tmp/2026_01_05_09_30_00.dat") == wave(4));
    EXPECT_EQ(vk::waveRequestOf(fetched), expected);
  }
  reading.files[0].size = 65536;
  library().block(header);
  EXPECT_EQ(fetch(vk::kReadToView).result, vk::kCardFailed);
  EXPECT_EQ(takeLog(), kStart + "label Communication Error has occurred.\n");
}

TEST_F(CardTransferTest, WhatAFailureShowsAndLeaves) {
  const std::string old = "DAT00001.dat 3\nyields 7", end = "][ok][exclamation]\n";
  library().block("ERR,51");
  EXPECT_EQ(failed(4), "box[USB Error][CF card Read Error[ERROR-51]" + end +
                           "box[Header File Error][Cannot read Header File." + end +
                           "box[Header File Error][The contents of header file are not right." +
                           end + old);
  serve();
  library().writeResults = {64, -1007};
  EXPECT_EQ(failed(4), "box[USB Error][Failed in writing ASCII Data." + end +
                           "box[Data File Error][Cannot read Data file." + end + old);
  // Broken off behind the first or second block, which stay.
  const struct {
    int64_t size;
    std::vector<int32_t> results;
    std::string shown;
  } rows[] = {{196608, {-1006}, "DAT00001.dat 65536\nyields 8"},
              {196608, {0}, "DAT00001.dat 65536\nyields 8"},
              {65600, {-1006}, "DAT00001.dat 65536\nyields 8"},
              {196608, {1, -1006}, "33%\nDAT00001.dat 131072\nyields 9"}};
  for (const auto& row : rows) {
    serve(65536);
    for (const int32_t result : row.results) library().blocks.push_back({"", result});
    EXPECT_EQ(failed(row.size), row.shown);
  }
  for (const std::string& stem :
       {std::string("../EVIL"), std::string("A\\B"), std::string("A\0B", 3)}) {
    serve();
    EXPECT_EQ(failed(4, stem).find("box[File Error][<>/" + stem + ".dat|Invalid file name.]"), 0U);
    EXPECT_EQ(listing(), "DAT00001.dat 3\n");
  }
}

TEST_F(CardTransferTest, AFullDiskOrAStopReadsTheRestAndLeavesTheOldFile) {
  const std::string read = "readB(1,65536)\n", all = kRequests + read + read + read;
  serve(3 * 65536 + 100);
  {
    const vktest::FileLimit disk(100000);
    EXPECT_EQ(failed(3 * 65536 + 100),
              "label DAT00001.DAT  is being read to its end...\n67%\n"
              "box[File Error][<>/DAT00001.dat|Error has occurred.][ok][exclamation]\n"
              "DAT00001.dat 3\nyields 10");
  }
  EXPECT_EQ(library().takeTranscript(), all + "readB(1,128)\n");
  serve(3 * 65536 + 2);
  bool stop = false;
  view.stopped = [&] { return stop; };
  desktop.yields.assign(3, [] {});
  desktop.yields.push_back([&] { stop = true; });
  EXPECT_TRUE(failed(3 * 65536 + 2).ends_with("DAT00001.dat 3\nyields 11"));
  EXPECT_EQ(library().takeTranscript(), all + "readB(1,64)\n");
}

TEST_F(CardTransferTest, FilesThatCannotBeWrittenAndOtherSpellingsOfThePair) {
  serve();
  std::filesystem::create_directories(folder / "DAT00001.hed" / "occupied");
  EXPECT_EQ(failed(4).find("100%\nbox[File Error][<>/DAT00001.hed|"), 0U);
  // No new data file beside an old header.
  EXPECT_EQ(listing(), "DAT00001.dat 3\n");
  std::filesystem::remove_all(folder / "DAT00001.hed");
  for (const char* name : {"DAT00001.DAT", "DAT00001.Hed", "DAT000012.DAT", "dat00001.DAT"}) {
    place.put(name, "old");
  }
  serve();
  EXPECT_EQ(save(), vk::kCardOk);
  EXPECT_EQ(listing(), "DAT00001.dat 4\nDAT00001.hed 238\nDAT000012.DAT 3\ndat00001.DAT 3\n");
  takeLog();
  library().takeTranscript();
  reading.folder[0] = (folder / "gone").string();
  serve();
  EXPECT_EQ(failed(4).find("box[File Error][<>/gone/DAT00001.dat|"), 0U);
  // The folder is missed before the transfer.
  EXPECT_EQ(library().takeTranscript(), "write(1,HFLDAT00001.DAT.HED)\nreadB(1,320)\n");
}

}  // namespace
