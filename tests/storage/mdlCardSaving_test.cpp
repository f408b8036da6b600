// SPDX-License-Identifier: MIT
#include "tests/storage/card_fixture.h"

namespace {

using vk::BoxAnswer;
using vktest::library;
using vktest::wave;

const std::string kCanceled = "box[USB Error][canceled.][ok-cancel][exclamation]\n";
const std::string kEmpty = "box[File Error][Size of the file is 0 bytes.][ok][exclamation]\n";
const std::string kEnd = "0";

std::string ask(const std::string& name) {
  return "box[File Process][<>/" + name +
         "|This file name is already in use.Overwrite?][yes-no][exclamation]\n";
}
std::string done(const std::string& name) {
  return "label " + name + ".DAT  reading ended.\nlabel Ended.\n";
}

class CardSavingTest : public vktest::CardTest {
 protected:
  /// The log is without what a single transfer shows.
  CardSavingTest() {
    vk::waveRequestSet = 1;
    reading.view.setPercent = [this](int percent) { bar = std::to_string(percent); };
    reading.view.setPercentText = [this](const std::string& text) { count = text; };
    reading.view.setMessage = [this](const std::string& text) {
      if (!text.ends_with("...")) note("label " + text);
    };
  }
  void put(const std::string& stem, std::size_t size = 4) {
    addFile(stem, static_cast<int64_t>(size));
    serve(size);
  }
  std::string save(vk::SaveKind kind = vk::kSaveBinary) {
    vk::saveCheckedFiles(reading, kind);
    return takeLog() + bar + count;
  }
  std::string bar, count;
};

TEST_F(CardSavingTest, SavesTheCheckedRowsInOrder) {
  EXPECT_EQ(save(), "");
  addFile("SKIPPED");
  reading.files[0].checked = false;
  EXPECT_EQ(save(), "label check file.\n");
  EXPECT_EQ(vk::waveRequestSet, 1);
  put("A");
  addFile("EMPTY", 0);
  put("B", 65538);
  EXPECT_EQ(save(), done("A") + kEmpty + done("B") + kEnd);
  EXPECT_EQ(listing(), "A.dat 4\nA.hed 231\nB.dat 65538\nB.hed 231\n");
  EXPECT_TRUE(saved("B.dat") == wave(65538));
  EXPECT_EQ(vk::waveRequestSet, 0);
}

TEST_F(CardSavingTest, AsksBeforeItOverwritesInEitherLetterCase) {
  const struct {
    std::string existing;
    BoxAnswer answer;
    std::string log, kept;
  } rows[] = {
      {"A.DAT", BoxAnswer::kNo, ask("A.DAT") + "label canceled.\n", "A.DAT 3\n"},
      {"A.DAT", BoxAnswer::kClosed, ask("A.DAT") + done("A"), "A.dat 4\nA.hed 231\n"},
      {"a.dat", BoxAnswer::kNo, done("A"), "A.dat 4\nA.hed 231\na.dat 3\n"},
  };
  for (const auto& row : rows) {
    startOver();
    desktop.answers = {row.answer};
    place.put(row.existing, "old");
    if (row.existing == "a.dat") place.put("A.hed", "old");
    put("A");
    EXPECT_EQ(save(), row.log + kEnd) << row.existing;
    EXPECT_EQ(listing(), row.kept) << row.existing;
  }
}

TEST_F(CardSavingTest, AfterAFailureTheUserDecides) {
  const struct {
    BoxAnswer answer;
    std::string log, files;
  } rows[] = {{BoxAnswer::kOk, "label Ended.\n" + done("B"), "A.dat 65536\nB.dat 4\nB.hed 231\n"},
              {BoxAnswer::kClosed, "label Communication Error has occurred.\n", "A.dat 65536\n"}};
  for (const auto& row : rows) {
    startOver();
    put("A", 65536);
    reading.files[0].size = 2 * 65536;
    library().blocks.push_back({"", -1006});
    put("B");
    desktop.answers = {row.answer};
    EXPECT_EQ(save(), kCanceled + row.log + kEnd);
    EXPECT_EQ(listing(), row.files);
    EXPECT_EQ(vk::waveRequestSet, 0);
  }
}

TEST_F(CardSavingTest, CsvGoesThroughItsConversion) {
  for (const auto& [stem, size] : {std::pair{"A", 4}, {"B", 4}, {"EMPTY", 0}}) addFile(stem, size);
  EXPECT_EQ(save(vk::kSaveCsv), "");
  place.put("csv/A.csv", "old");
  std::string rows;
  vk::gConvertToCsv = [&](vk::CardReading&, std::size_t row) {
    rows += std::to_string(row) + " ";
    return row == 1 ? -1 : 0;
  };
  const std::string all = "label Ended.\n" + kCanceled + "label Ended.\n" + kEmpty + kEnd;
  EXPECT_EQ(save(vk::kSaveCsv), all);
  reading.folder[1] = (folder / "csv").string() + "/";
  desktop.answers = {BoxAnswer::kNo, BoxAnswer::kCancel};
  EXPECT_EQ(save(vk::kSaveCsv), ask("csv/A.csv") + "label canceled.\n" + kCanceled +
                                    "label Communication Error has occurred.\n" + kEnd);
  // With division on the numbered names are asked about by the conversion itself.
  reading.csv.division = true;
  EXPECT_EQ(save(vk::kSaveCsv), all);
  EXPECT_EQ(rows, "0 1 1 0 1 ");
}

TEST_F(CardSavingTest, AnEndingProgramAsksNothingMore) {
  put("A", 65536);
  put("B");
  endInYield(4);
  EXPECT_EQ(save() + listing(), "end\n" + kEnd);
  EXPECT_EQ(library().takeTranscript().find("HFLB"), std::string::npos);
}

}  // namespace
