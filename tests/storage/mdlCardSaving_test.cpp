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
  const auto no = [](const char* name) { return ask(name) + "label canceled.\n" + kEnd; };
  const struct {
    vk::SaveKind kind;
    bool division;
    BoxAnswer answer;
    std::string existing, log, files;
  } rows[] = {
      {vk::kSaveBinary, false, BoxAnswer::kNo, "A.DAT", no("A.DAT"), "A.DAT 3\n"},
      {vk::kSaveBinary, false, BoxAnswer::kClosed, "A.DAT", ask("A.DAT") + done("A") + kEnd,
       "A.dat 4\nA.hed 231\n"},
      // A name in other letters is another file.
      {vk::kSaveBinary, false, BoxAnswer::kNo, "a.dat", done("A") + kEnd,
       "A.dat 4\nA.hed 231\na.dat 3\n"},
      // What the CSV page says about dividing is nothing to a pair.
      {vk::kSaveBinary, true, BoxAnswer::kNo, "A.dat", no("A.DAT"), "A.dat 3\n"},
      {vk::kSaveCsv, false, BoxAnswer::kNo, "A.csv", no("A.csv"), "A.csv 3\n"},
      // The numbered names are asked about by the conversion itself.
      {vk::kSaveCsv, true, BoxAnswer::kNo, "A_0001.csv",
       "label A.DAT  reading ended.\n" + ask("A_0001.csv") + kCanceled + "label Ended.\n1",
       "A_0001.csv 3\n"},
  };
  for (const auto& row : rows) {
    startOver();
    place.put(row.existing, "old");
    put("A");
    library().block(vktest::cardHeader());
    reading.csv.division = row.division;
    desktop.answers = {row.answer};
    EXPECT_EQ(save(row.kind), row.log);
    EXPECT_TRUE(listing().starts_with(row.files)) << listing();
  }
}

TEST_F(CardSavingTest, AnEndingProgramAsksNothingMore) {
  for (int yields = 1; yields <= 5; ++yields) {
    startOver();
    desktop.ended = false;
    put("A", 65536);
    put("B");
    endInYield(yields);
    EXPECT_EQ(save() + listing(), "end\n" + kEnd);
    EXPECT_EQ(library().takeTranscript().find("HFLB"), std::string::npos);
  }
}

}  // namespace
