// SPDX-License-Identifier: MIT
#include "tests/storage/card_fixture.h"

namespace {

using vk::BoxAnswer;
using vktest::library;
using vktest::wave;

const std::string kCanceled = "box[USB Error][canceled.][ok-cancel][exclamation]\n";
const std::string kEmpty = "box[File Error][Size of the file is 0 bytes.][ok][exclamation]\n";
const std::string kEnd = "0";  // files that failed

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
    view.progress = {};
    view.say = [this](const std::string& text, const std::string&) {
      if (!text.ends_with("...") && !text.ends_with("conversion ended.")) note("label " + text);
    };
  }
  void put(const std::string& stem, std::size_t size = 4) {
    addFile(stem, static_cast<int64_t>(size));
    serve(size);
  }
  std::string save(vk::SaveKind kind = vk::kSaveBinary) {
    const vk::CardSaved result = vk::saveCheckedFiles(reading, kind, view);
    return takeLog() + (result.any ? std::to_string(result.failed) : "");
  }
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
    EXPECT_EQ(save(), kCanceled + row.log + "1");
    EXPECT_EQ(listing(), row.files);
    EXPECT_EQ(vk::waveRequestSet, 0);
  }
}

TEST_F(CardSavingTest, EachKindAsksAboutItsOwnFilesAsItsOwnDivisionSays) {
  const std::string csv = "label A.DAT  reading ended.\nlabel Ended.\n";
  const struct {
    vk::SaveKind kind;
    bool division;
    std::string log;
  } rows[] = {
      {vk::kSaveBinary, false, ask("A.DAT") + "label canceled.\n" + kEnd},
      // What the CSV page says about dividing is nothing to a pair.
      {vk::kSaveBinary, true, ask("A.DAT") + "label canceled.\n" + kEnd},
      {vk::kSaveCsv, false, ask("A.csv") + "label canceled.\n" + kEnd},
      // The numbered names are asked about by the conversion itself.
      {vk::kSaveCsv, true, csv + kEnd},
  };
  for (const auto& row : rows) {
    startOver();
    for (const char* name : {"A.dat", "A.csv"}) place.put(name, "old");
    put("A", 65536);
    library().block(vktest::cardHeader());
    reading.csv.division = row.division;
    desktop.answers = {BoxAnswer::kNo};
    EXPECT_EQ(save(row.kind), row.log);
    EXPECT_EQ(saved("A.dat") + saved("A.csv"), "oldold");
    EXPECT_EQ(saved("A_0001.csv").empty(), row.kind == vk::kSaveBinary || !row.division);
  }
}

TEST_F(CardSavingTest, AfterAFailedConversionTheUserDecides) {
  addFile("A");
  addFile("B");
  // Each refused header shows three boxes before the question.
  desktop.answers.assign(7, BoxAnswer::kOk);
  desktop.answers.push_back(BoxAnswer::kCancel);
  const std::string log = save(vk::kSaveCsv);
  EXPECT_TRUE(log.ends_with(kCanceled + "label Communication Error has occurred.\n2")) << log;
}

TEST_F(CardSavingTest, AnEndingProgramAsksNothingMore) {
  put("A", 65536);
  put("B");
  endInYield(4);
  EXPECT_EQ(save() + listing(), "end\n" + kEnd);
  EXPECT_EQ(library().takeTranscript().find("HFLB"), std::string::npos);
}

}  // namespace
