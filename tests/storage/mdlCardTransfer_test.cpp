// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "tests/storage/card_fixture.h"

namespace {

using vktest::cardHeader;
using vktest::library;
using vktest::wave;

const std::string kSavedHeader =
    "DATASET DAT00001|VERSION 1|SERIES CH1,CH2|DATE 01-05-2026|TIME 09:30:00|RATE 1000|"
    "VERT_UNITS ue,V|HORZ_UNITS SEC|NUM_SERIES 2|STORAGE_MODE INTERLACED|FILE_TYPE INTEGER|"
    "SLOPE 0.5,0.25|X_OFFSET 0|Y_OFFSET 0,0|NUM_SAMPS 16384|";
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
  const struct {
    int64_t size;
    std::vector<int> reads, percents;
  } rows[] = {{0, {}, {}},
              {65536, {65536}, {}},
              {131172, {65536, 65536, 128}, {50}},
              // Halves go to the even neighbour.
              {524288, std::vector<int>(8, 65536), {12, 25, 38, 50, 62, 75, 88}}};
  for (const auto& row : rows) {
    startOver();
    addFile("DAT00001", row.size);
    // Without a series from the opening the header's own stays.
    reading.files[0].seriesText.clear();
    serve(static_cast<std::size_t>(row.size));
    EXPECT_EQ(save(), vk::kCardOk);
    std::string transcript = kRequests, log = kStart;
    for (const int read : row.reads) transcript += "readB(1," + std::to_string(read) + ")\n";
    for (const int percent : row.percents) {
      log += std::to_string(percent) + "%\n";
    }
    EXPECT_EQ(library().takeTranscript(), transcript);
    EXPECT_EQ(takeLog(), log + "100%\n" + kEnd);
    EXPECT_TRUE(saved("DAT00001.dat") == wave(static_cast<std::size_t>(row.size))) << row.size;
    EXPECT_EQ(readable(saved("DAT00001.hed")), kSavedHeader);
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
  reading.files[0].saveFileName = "AB.C.DAT";
  reading.files[0].seriesText = "left,right";
  serve(65538);
  // The description is its own: what a yield does to the window's rows changes nothing.
  desktop.yields.assign(7, [&] {
    EXPECT_TRUE(desktop.hourglass);
    reading.files[0] = {};
  });
  EXPECT_EQ(save(), vk::kCardOk);
  EXPECT_FALSE(desktop.hourglass);
  EXPECT_EQ(library().takeTranscript(), kRequests + "readB(1,65536)\nreadB(1,64)\n");
  EXPECT_EQ(listing(), "AB.C.dat 65538\nAB.C.hed 237\n");
  EXPECT_EQ(readable(saved("AB.C.hed")).substr(0, 51),
            "DATASET AB.C|VERSION 1|SERIES left,right|DATE 01-05");
}

TEST_F(CardTransferTest, ForCsvAndViewThePairIsTemporaryAndTheHeaderStaysAsRead) {
  desktop.time = {2026, 1, 2, 3, 4, 5};
  addFile("DAT00001");
  reading.files[0].seriesText = "edited";
  // A byte that is not UTF-8 comes back as it is.
  std::string header = cardHeader();
  header[9] = '\xE9';
  for (const auto kind : {vk::kReadForCsv, vk::kReadToView}) {
    serve(4, header);
    const vk::CardFetched fetched = fetch(kind);
    EXPECT_EQ(fetched.result, vk::kCardOk);
    EXPECT_EQ(takeLog(), kStart + "100%\n" + kEnd);
    EXPECT_EQ(readable(vk::gTempFileList),
              "<>/tmp/2026_01_02_03_04_05.dat|<>/tmp/2026_01_02_03_04_05.hed|");
    vk::gTempFileList.clear();
    EXPECT_EQ(fetched.stem, (folder / "tmp" / "2026_01_02_03_04_05").string());
    // One character more than the file has, and the writer's line end.
    EXPECT_TRUE(saved("tmp/2026_01_02_03_04_05.hed") == header + '\0' + "\r\n");
    EXPECT_TRUE(saved("tmp/2026_01_02_03_04_05.dat") == wave(4));
  }
  reading.temporaryFolder.clear();
  serve();
  EXPECT_EQ(fetch(vk::kReadForCsv).result, vk::kCardFailed);
  EXPECT_NE(takeLog().find("box[File Error][2026_01_02_03_04_05.dat|"), std::string::npos);
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

TEST_F(CardTransferTest, AFullDiskIsShownAndLeavesTheOldFileAndTheLinkInStep) {
  serve(3 * 65536 + 100);
  rlimit unlimited{};
  getrlimit(RLIMIT_FSIZE, &unlimited);
  const rlimit limit{100000, unlimited.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &limit);
  const std::string told = failed(3 * 65536 + 100);
  setrlimit(RLIMIT_FSIZE, &unlimited);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(told,
            "label DAT00001.DAT  is being read to its end...\n67%\n"
            "box[File Error][<>/DAT00001.dat|Error has occurred.][ok][exclamation]\n"
            "DAT00001.dat 3\nyields 10");
  // All blocks are read, although the second one found no room.
  const std::string read = "readB(1,65536)\n";
  EXPECT_EQ(library().takeTranscript(), kRequests + read + read + read + "readB(1,128)\n");
}

TEST_F(CardTransferTest, AStopReadsTheRestAndDropsIt) {
  serve(3 * 65536 + 2);
  bool stop = false;
  view.stopped = [&] { return stop; };
  desktop.yields.assign(3, [] {});
  desktop.yields.push_back([&] { stop = true; });
  EXPECT_TRUE(failed(3 * 65536 + 2).ends_with("DAT00001.dat 3\nyields 11"));
  const std::string read = "readB(1,65536)\n";
  EXPECT_EQ(library().takeTranscript(), kRequests + read + read + read + "readB(1,64)\n");
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

TEST_F(CardTransferTest, AnEndingProgramStopsWithNothingShown) {
  for (int yields = 1; yields <= 5; ++yields) {
    startOver();
    desktop.ended = false;
    addFile("DAT00001", 2 * 65536);
    serve(2 * 65536);
    endInYield(yields);
    EXPECT_EQ(save(), vk::kCardFailed);
    EXPECT_EQ(desktop.yieldCount, yields);
    EXPECT_EQ(takeLog().find("box["), std::string::npos);
    EXPECT_EQ(listing(), "");
  }
}

TEST_F(CardTransferTest, TheWaveViewIsToldAFailureAndGetsARequestForAPair) {
  addFile("DAT00001", 65536);
  library().block(cardHeader());
  EXPECT_EQ(fetch(vk::kReadToView).result, vk::kCardFailed);
  EXPECT_EQ(takeLog(), kStart + "label Communication Error has occurred.\n");
  serve(65536);
  vk::WaveOpenRequest expected;
  expected.fileName[0] = (folder / "tmp" / "2026_01_05_09_30_00").string();
  expected.channelList[0] = "1,2";
  expected.seriesInFile[0] = 2;
  expected.firstDataNumber = 1;
  expected.lastDataNumber = 16384;
  expected.rate = 1000;
  expected.startStamp = "01-05-2026,09:30:00";
  EXPECT_EQ(vk::waveRequestOf(fetch(vk::kReadToView)), expected);
}

TEST_F(CardTransferTest, AHeaderOfLatin1GetsItsNewNamesInLatin1) {
  addFile("DAT00001");
  reading.files[0].saveFileName = "Größe.DAT";
  reading.files[0].seriesText = "L\xE4nge,CH2";
  std::string header = cardHeader();
  header.replace(header.find("CH1"), 1, "\xC4");
  serve(4, header);
  EXPECT_EQ(save(), vk::kCardOk);
  EXPECT_EQ(saved("Größe.hed")
                .find("DATASET Gr\xF6\xDF"
                      "e\r\nVERSION 1\r\nSERIES L\xE4nge,CH2\r\n"),
            0U);
}

}  // namespace
