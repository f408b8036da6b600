// SPDX-License-Identifier: MIT
#include "storage/mdlCsvConversion.h"

#include "storage/mdlCsvFolder.h"
#include "tests/storage/card_fixture.h"
#include "tests/support/file_limit.h"

namespace {

using vk::BoxAnswer;
using vktest::cardHeader;
using vktest::library;

std::string ask(const std::string& name) {
  return "box[File Process][<>/" + name +
         "|This file name is already in use.Overwrite?][yes-no][exclamation]\n";
}
std::string fileBox(const std::string& name, const std::string& cause) {
  return "box[File Error][<>/" + name + "|" + cause + "][ok][exclamation]\n";
}
const std::string kOther = "Error has occurred.";
const std::string kBadHeader =
    "box[Header File Error][The contents of header file are not right.][ok][exclamation]\n";

std::string headerText(int samples) {
  std::string text = cardHeader();
  text.replace(text.rfind("16384"), 5, std::to_string(samples));
  return text;
}

std::string words(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) {
    bytes += static_cast<char>(value);
    bytes += static_cast<char>(value >> 8);
  }
  return bytes;
}

/// Works in either place on a recording "A" of two series.
class CsvConversionTest : public vktest::CardTest {
 protected:
  CsvConversionTest() { view = {}; }
  /// Progress in the log as well.
  void watch() {
    view.progress = [this](double part) { note(std::to_string(vk::percentOf(part)) + "%"); };
    view.say = [this](const std::string& text, const std::string&) { note(text); };
  }
  vk::CsvJob job(int samples, bool division = false, int count = 4) {
    vk::CsvJob job;
    EXPECT_EQ(vk::textToHeader(headerText(samples), job.header), 0);
    job.source = (folder / "A.dat").string();
    job.folder = folder.string();
    job.stem = "A";
    job.options = {division, count, true};
    return job;
  }
  std::string convert(const vk::CsvJob& job) {
    const int32_t result = vk::convertRecording(job, view);
    return takeLog() + std::to_string(result);
  }
  /// Converts in the card window, whose box serves `samples` of zeros.
  std::string fromCard(int samples, bool division) {
    if (reading.files.empty()) addFile("A", samples * 4);
    reading.files[0].headerSize = static_cast<int64_t>(headerText(samples).size());
    reading.csv = {division, 4, true};
    library().block(headerText(samples));
    library().block(std::string((static_cast<std::size_t>(samples) * 4 + 63) / 64 * 64, '\0'));
    library().block(headerText(samples));
    const int32_t result = vk::convertToCsv(reading, 0, view);
    return takeLog() + std::to_string(result);
  }
  /// Converts in the window over a folder.
  std::string fromFolder(int samples, bool division) {
    place.put("A.hed", headerText(samples));
    place.put("A.DAT", std::string(static_cast<std::size_t>(samples) * 4, '\0'));
    vk::CsvFolder work;
    work.folder = {folder.string(), folder.string()};
    work.files = vk::recordingsIn(folder.string());
    for (auto& file : work.files) file.checked = true;
    work.options = {division, 4, true};
    const int32_t result = vk::convertCheckedFiles(work, view);
    return takeLog() + std::to_string(result);
  }
  /// Name, number of lines behind the head, NUM_SAMPS and times of every CSV file.
  std::string csvFiles() const {
    std::set<std::string> lines;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() != ".csv") continue;
      const std::string text = vktest::DataFolder::bytesOf(entry.path());
      const auto after = [&](const std::string& key) {
        const auto at = text.find(key) + key.size();
        return text.substr(at, text.find("\r\n", at) - at);
      };
      lines.insert(entry.path().filename().string() + " " +
                   std::to_string(std::count(text.begin(), text.end(), '\n') - 17) + " lines " +
                   after("DATASET,") + " " + after("NUM_SAMPS,") + " " + after("CSV Data,") + "\n");
    }
    std::string text;
    for (const auto& line : lines) text += line;
    return text;
  }
};

TEST_F(CsvConversionTest, WritesAWholeFile) {
  place.put("A.dat", words({120, -35, -32768, 32767, 1, 2}));
  EXPECT_EQ(convert(job(3)), "0");
  EXPECT_TRUE(saved("A.csv").starts_with("CSV Data,0.000sec - 0.002sec\r\nDATASET,DAT00001\r\n"));
  const std::string head = "\r\nNUM_SAMPS,3\r\n,CH1,CH2\r\n";
  EXPECT_TRUE(saved("A.csv").ends_with(head + "1,60,-8.75\r\n2,-16384,8191.75\r\n3,0.5,0.5\r\n"));
  vk::CsvJob raw = job(3);
  raw.options.scaled = false;
  // Cut inside a word: what is missing reads as 0.
  place.put("A.dat", words({120, -35, -32768, 32767}).substr(0, 7));
  EXPECT_EQ(convert(raw), "0");
  EXPECT_TRUE(saved("A.csv").ends_with(head + "1,120,-35\r\n2,-32768,0\r\n3,0,0\r\n"));
}

TEST_F(CsvConversionTest, BlocksOfTheSourceMayEndInsideAFrame) {
  vk::CsvJob three = job(100000);
  three.header[vk::kNumSeries] = "3";
  three.header[vk::kSlope] = "1,1,1";
  std::string bytes, lines;
  for (int i = 0; i < 100000; ++i) {
    const int value = i % 30000;
    bytes += words({value, -value, 7});
    for (const int one : {i + 1, value, -value}) lines += std::to_string(one) + ",";
    lines += "7\r\n";
  }
  place.put("A.dat", bytes);
  EXPECT_EQ(convert(three), "0");
  EXPECT_TRUE(saved("A.csv").ends_with(",CH1,CH2\r\n" + lines));
}

TEST_F(CsvConversionTest, BothPlacesDivideByTheirOwnRule) {
  const std::string whole = "A_0001.csv 4 lines A_0001 4 0.000sec - 0.003sec\n";
  const std::pair<int, std::string> rows[] = {
      {3, "A_0001.csv 3 lines A_0001 4 0.000sec - 0.003sec\n"},
      {4, whole + "A_0002.csv 0 lines A_0002 0 0.004sec - 0.003sec\n"},
      {6, whole + "A_0002.csv 2 lines A_0002 2 0.004sec - 0.005sec\n"},
      {8, whole + "A_0002.csv 4 lines A_0002 4 0.004sec - 0.007sec\n"
                  "A_0003.csv 0 lines A_0003 0 0.008sec - 0.007sec\n"},
  };
  for (const auto& [samples, files] : rows) {
    startOver();
    EXPECT_EQ(fromCard(samples, true), "0");
    EXPECT_EQ(csvFiles(), files);
    startOver();
    EXPECT_EQ(fromFolder(samples, true), "0");
    // A short recording of a folder stays one file.
    EXPECT_EQ(csvFiles() == files, samples > 4);
    EXPECT_EQ(saved("A.csv").empty(), samples > 4);
  }
  EXPECT_TRUE(saved("A_0002.csv").ends_with(",CH1,CH2\r\n1,0,0\r\n2,0,0\r\n3,0,0\r\n4,0,0\r\n"));
}

TEST_F(CsvConversionTest, AsksBeforeItOverwrites) {
  const struct {
    bool card, division;
    std::string log;
  } rows[] = {
      {false, false, ask("A.csv") + "-1"},
      {false, true, ask("A_0001.csv") + "-1"},
      // Asked about before the conversion.
      {true, false, "0"},
      {true, true, ask("A_0001.csv") + "-1"},
  };
  for (const auto& row : rows) {
    startOver();
    for (const char* name : {"A.csv", "A_0001.CSV", "A_0002.csv"}) place.put(name, "old");
    desktop.answers = {BoxAnswer::kNo};
    EXPECT_EQ(row.card ? fromCard(6, row.division) : fromFolder(6, row.division), row.log);
    EXPECT_EQ(saved("A.csv") == "old", row.log != "0");
    EXPECT_EQ(saved("A_0001.csv"), "");
  }
  // What is finished stays.
  startOver();
  for (const char* name : {"A_0001.CSV", "A_0001.Csv", "A_0002.csv", "A_0001.txt"})
    place.put(name, "old");
  desktop.answers = {BoxAnswer::kYes, BoxAnswer::kNo};
  EXPECT_EQ(fromFolder(6, true), ask("A_0001.csv") + ask("A_0002.csv") + "-1");
  // What "Yes" gave up stays in no spelling; other names do.
  EXPECT_EQ(saved("A_0001.CSV") + saved("A_0001.Csv") + saved("A_0001.txt"), "old");
  EXPECT_GT(saved("A_0001.csv").size(), 250U);
  EXPECT_EQ(saved("A_0002.csv"), "old");
  EXPECT_FALSE(desktop.hourglass);
}

TEST_F(CsvConversionTest, ProgressComesTenTimes) {
  place.put("A.dat", "");
  watch();
  const auto mark = [](int percent, const std::string& name) {
    return std::to_string(percent) + "%\n" + name + "  is being converted...\n";
  };
  std::string expected;
  for (int i = 1; i <= 10; ++i) expected += mark(10 * i, "A.csv");
  EXPECT_EQ(convert(job(100000)), expected + "A.csv  conversion ended.\n0");
  EXPECT_EQ(desktop.yieldCount, 11);
  // A sample raises one mark at most: the marks of 4 samples are -2 -1 -1 0 0 0 1 1 2 2.
  EXPECT_EQ(convert(job(4, true, 2)), mark(10, "A_0001.csv") + mark(20, "A_0002.csv") +
                                          mark(30, "A_0002.csv") + mark(40, "A_0003.csv") +
                                          "A_0003.csv  conversion ended.\n0");
  EXPECT_EQ(convert(job(0)), "A.csv  conversion ended.\n0");
}

TEST_F(CsvConversionTest, WhatFailsLeavesNoPieceOfAFile) {
  place.put("A.dat", "");
  std::filesystem::create_directory(folder / "FOLDER.dat");
  std::filesystem::create_directory(folder / "A_0002.csv");
  const auto with = [this](auto change) {
    vk::CsvJob changed = job(3);
    change(changed);
    return changed;
  };
  const std::pair<vk::CsvJob, std::string> rows[] = {
      {with([&](auto& job) { job.source = folder / "GONE.dat"; }),
       fileBox("GONE.dat", "File does not exist.")},
      {with([&](auto& job) { job.source = folder / "FOLDER.dat"; }), fileBox("FOLDER.dat", kOther)},
      {with([&](auto& job) { job.folder = folder / "none"; }), fileBox("none/A.csv", kOther)},
      {with([](auto& job) { job.stem = "../A"; }), fileBox("../A.csv", "Invalid file name.")},
      {with([](auto& job) { job.header[vk::kSlope] = "0.5"; }), kBadHeader},
      {with([](auto& job) { job.header[vk::kRate] = "0"; }), kBadHeader},
  };
  for (const auto& [bad, box] : rows) EXPECT_EQ(convert(bad), box + "-1");
  EXPECT_EQ(listing(), "A.dat 0\n");
  {
    const vktest::FileLimit disk(300000);
    EXPECT_EQ(convert(job(100000)), fileBox("A.csv", kOther) + "-1");
  }
  EXPECT_EQ(listing(), "A.dat 0\n");
  // The folder in the second file's way is no file to ask about.
  EXPECT_EQ(convert(job(6, true)), fileBox("A_0002.csv", kOther) + "-1");
  EXPECT_EQ(listing(), "A.dat 0\nA_0001.csv " + std::to_string(saved("A_0001.csv").size()) + "\n");
}

TEST_F(CsvConversionTest, StopsInAYield) {
  place.put("A.dat", "");
  bool closed = false;
  view.stopped = [&] { return closed; };
  // The third mark of 100 samples is raised in the second file of four.
  for (int i = 0; i < 2; ++i) desktop.yields.push_back([] {});
  desktop.yields.push_back([&] { closed = true; });
  EXPECT_EQ(convert(job(100, true, 25)), "-2");
  EXPECT_EQ(csvFiles(), "A_0001.csv 25 lines A_0001 25 0.000sec - 0.024sec\n");
  closed = false;
  endInYield(1);
  EXPECT_EQ(convert(job(100)), "end\n-1");
  EXPECT_EQ(listing().find("A.csv"), std::string::npos);
}

TEST_F(CsvConversionTest, TheCardsHeaderIsReadAgainByTheRowsName) {
  EXPECT_EQ(fromCard(3, false), "0");
  const std::string transcript = library().takeTranscript();
  EXPECT_TRUE(transcript.find("HFLA.DAT.HED") < transcript.find("HFLA.HED"));
  // The box does not know a new name.
  reading.files[0].rowText = "NEW.DAT";
  library().block(headerText(3));
  library().block(std::string(64, '\0'));
  library().block("ERR");
  EXPECT_EQ(vk::convertToCsv(reading, 0, view), vk::kCardFailed);
  EXPECT_TRUE(takeLog().ends_with(
      "box[Header File Error][Cannot read Header File.][ok][exclamation]\n" + kBadHeader));
  EXPECT_FALSE(desktop.hourglass);
}

TEST_F(CsvConversionTest, AFolderListsItsRecordings) {
  for (const char* name : {"b.dat", "C.DAT", "a.DAT", "x.Dat", "d.dat", "E.dat"})
    place.put(name, name);
  for (const char* name : {"b.HED", "C.hed", "a.hed", "E.hed"}) place.put(name, "header");
  std::filesystem::create_directory(folder / "aa.dat");
  const auto list = [this] {
    std::string text;
    for (const auto& file : vk::recordingsIn(folder.string()))
      text += file.rowText + "|" + file.sizeText + "|" + file.headerSizeText + "\n";
    return text;
  };
  place.put("a.HeD", "another header");
  // A file without a header ends the list.
  EXPECT_EQ(list(), "a.DAT|5|6\nb.dat|5|6\nC.DAT|5|6\nd.dat|5|\n");
  EXPECT_EQ(vk::recordingsIn(folder.string())[0].date.size(), 19U);
  EXPECT_TRUE(vk::recordingsIn("/nonexistent").empty());
}

TEST_F(CsvConversionTest, AFailureEndsTheWorkOverAFolder) {
  for (const std::string name : {"A", "B", "C"}) {
    place.put(name + ".dat", words({1, 2}));
    place.put(name + ".HED", name == "B" ? "no header" : headerText(1));
  }
  watch();
  vk::CsvFolder work;
  work.folder = {folder.string(), folder.string()};
  work.files = vk::recordingsIn(folder.string());
  for (auto& file : work.files) file.checked = true;
  EXPECT_EQ(vk::convertCheckedFiles(work, view), vk::kCardFailed);
  EXPECT_EQ(takeLog(), "0%\n10%\nA.csv  is being converted...\nA.csv  conversion ended.\n0%\n" +
                           kBadHeader + "\n");
  EXPECT_EQ(saved("C.csv"), "");
  desktop.answers = {BoxAnswer::kNo};
  EXPECT_EQ(vk::convertCheckedFiles(work, view), vk::kCardFailed);
  EXPECT_EQ(takeLog(), "0%\n" + ask("A.csv") + "canceled.\n");
}

}  // namespace
