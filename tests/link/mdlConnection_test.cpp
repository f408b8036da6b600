// SPDX-License-Identifier: MIT
#include "link/mdlConnection.h"

#include <map>

#include "recorder/mdlSetDataWork.h"
#include "tests/support/link_fixture.h"

namespace vk {
namespace {

using vktest::library;
using Reply = vktest::ScriptedLibrary::Reply;

/// What a box answers by request; a request that is not listed is acknowledged.
using Box = std::map<std::string, Reply>;

std::string status(const std::string& state, int32_t serial) {
  return state + ",26/01/05,09:30:00,00,0101," + std::to_string(serial);
}

Box goodBox(int32_t serial, const std::string& state = "01") {
  Box box = {{"LST0", {std::string(kDefaultSetHigh)}},
             {"LST1", {"ue,ue,ue,ue"}},
             {"LST2", {"1.000000,1.000000,1.000000,1.000000"}},
             {"MET", {"02"}},
             {"STA20", {status(state, serial)}},
             {"FLN", {"003,120"}}};
  for (auto& [request, reply] : box) reply.bytes += "\r\n";
  return box;
}

class ConnectionTest : public vktest::LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    boxes.clear();
    gRestoreDefaults = [] {
      library().transcript.push_back("restore defaults");
      resetBoxTable();
    };
  }
  void TearDown() override {
    gRestoreDefaults = {};
    LinkTest::TearDown();
  }

  void plug(Box box) {
    boxes.push_back(std::move(box));
    library().devices = static_cast<int32_t>(boxes.size());
    library().answer = [this](int32_t handle, const std::string& request) {
      const Box& answering = boxes.at(static_cast<std::size_t>(handle - 1));
      const auto found = answering.find(request);
      return found == answering.end() ? Reply{"END", 80} : found->second;
    };
  }

  /// Runs the scan; its log stands in the transcript.
  static int32_t scan(bool allowUpgrade) {
    return connectBoxes(allowUpgrade, [](const std::string& line) {
      EXPECT_TRUE(line.ends_with("\r\n"));
      library().transcript.push_back("log " + line.substr(0, line.size() - 2));
    });
  }

  /// The transcript with every write and its read as "1:LST1", those of one device in a row.
  static std::string story() {
    std::string text;
    for (const std::string& line : library().transcript) {
      if (line.starts_with("read(")) continue;
      if (line.starts_with("write(")) {
        if (!text.empty() && text.back() != '\n') text += ' ';
        text += line.substr(6, 1) + ":" + line.substr(8, line.size() - 9);
        continue;
      }
      if (!text.empty() && text.back() != '\n') text += '\n';
      text += line + "\n";
    }
    library().transcript.clear();
    if (!text.empty() && text.back() != '\n') text += '\n';
    return text;
  }

  /// A line per row that is not empty: handle, serial, model, sync, state, balance, card.
  static std::string table() {
    std::string text;
    for (std::size_t i = 1; i <= kFileRow; ++i) {
      const MeasureSetting& row = gBoxTable[i];
      if (row == MeasureSetting{}) continue;
      text += std::to_string(i) + ":";
      for (const int32_t number : {row.handle, row.serial, int32_t{row.model},
                                   int32_t{row.syncMode}, int32_t{row.boxState}}) {
        text += " " + std::to_string(number);
      }
      text += " ";
      for (const int16_t flag : row.balance) text += std::to_string(flag);
      text += " " + row.fileCountText + "\n";
    }
    return text;
  }

  std::vector<Box> boxes;
};

const std::string kHead = "status\ncount\n";
const std::string kNormal = "normal.\n";
const std::string kNotConnected = "log VK-480Q is not connected.\n";
const std::string kSingle =
    "log [Caution !!]\nlog VK-480Q is in upgrade mode of the program.\n"
    "log Don't upgrade when you connect several VK-480Q.\n";
const std::string kSeveral =
    "log [Caution !!]\nlog Several VK-480Qs in upgrade mode of program are connected.\n"
    "log Cannot be upgraded with several units in use.\n";
const std::string kRefusal =
    "idle box[Connection error][VK-480Q in upgrade mode is connected. Stop the upgrade mode and "
    "reconnect.][ok][none]\nstatus\nclose\nrestore defaults\n";

/// The repair of the contents of the first box.
std::string repair(std::string_view conditions) {
  return "not normal.\nlog  The set contents are made default.\n1:SET" + std::string(conditions) +
         " 1:UNTue,ue,ue,ue 1:CEF1.000000,1.000000,1.000000,1.000000 1:LST0 1:LST1 1:LST2 ";
}

/// The story of a box from its model probe on.
std::string goodStory(const std::string& n, const std::string& serial,
                      const std::string& model = "VK-480Q", const std::string& contents = kNormal,
                      const std::string& card = "log  CF card has been recognized.\n") {
  const std::string head = "log Serial Number : " + serial;
  return n + ":LST1 " + n + ":LST2 " + n + ":MET " + n + ":LST1 " + n +
         ":STA20\nlog ===== " + model + " =====\n" + head + " Connection has been confirmed.\n" +
         n + ":LST0 " + n + ":LST1 " + n + ":LST2\n" + head + " The set contents are " + contents +
         n + ":FLN\n" + card;
}

TEST_F(ConnectionTest, ThreeBoxesKeepTheLibrarysOrder) {
  library().open = 1;
  for (const char* state : {"02", "03", "01"}) plug(goodBox(1234567, state));
  boxes[0]["STA20"].bytes = "02,26/01/05,09:30:00,00,0000,0000042";
  boxes[1]["MET"].bytes = "ERR,22";
  boxes[1]["LST0"].bytes = std::string(kDefaultSetLow);
  boxes[1]["FLN"].bytes = "ERR,50";
  boxes[2]["STA20"].bytes = "01,26/01/05,09:30:00,01,1111,7654321";
  boxes[2]["MET"].bytes = "3";
  boxes[2]["FLN"].bytes = "ERR,51";
  EXPECT_EQ(scan(false), kStartNormal);
  EXPECT_EQ(story(),
            "status\nclose\ncount\n1:LST1 2:LST1 3:LST1 " + goodStory("1", "0000042") +
                goodStory("2", "1234567", "VK-240Q", kNormal, "log  CF card is not inserted.\n") +
                goodStory("3", "7654321", "VK-480Qe", kNormal,
                          "log  Unexpected error has occurred in CF card.\n") +
                "log Connected = 3Unit\n");
  EXPECT_EQ(table(),
            "1: 1 42 2 0 2 0000 003/120\n2: 2 1234567 0 0 3 0101 Un-insert\n"
            "3: 3 7654321 3 1 1 1111 \n");
  EXPECT_EQ(gBoxTable[1].sampling, 5);  // the box's own conditions, not the defaults of the table
  EXPECT_EQ(gUSBBusy, 0);
}

TEST_F(ConnectionTest, ContentsThatAreNotNormalAreMadeDefault) {
  // The request that is answered wrongly, the answer, the model and the state that is shown then.
  const std::tuple<const char*, std::string, const char*, const char*, int> rows[] = {
      {"STA20", status("99", 1234567), "1", "VK-240Qe", 1},
      {"LST0", "ERR,20", "2", "VK-480Q", 4},
      {"LST2", "1.0,0.0,1.0,1.0", "3", "VK-480Qe", 4}};
  for (const auto& [request, reply, model, banner, state] : rows) {
    SetUp();
    plug(goodBox(1234567, "04"));
    boxes[0]["MET"].bytes = model;
    const std::string conditions(model[0] == '1' ? kDefaultSetLow : kDefaultSetHigh);
    boxes[0]["LST0"].bytes = conditions;
    boxes[0][request].bytes = reply;
    EXPECT_EQ(scan(true), kStartNormal);
    EXPECT_EQ(story(), kHead + "1:LST1 " + goodStory("1", "1234567", banner, repair(conditions)) +
                           "log Connected = 1Unit\n");
    EXPECT_EQ(gBoxTable[1].boxState, state);
  }
}

TEST_F(ConnectionTest, UpgradeModeBeforeTheRowsAreFilledOrAtTheFirst) {
  // Of each box: g good, u in upgrade mode, f falls into it behind its model probe.
  const std::string row = "1:LST1 1:LST2 1:MET 1:LST1\n";
  const std::tuple<std::string, bool, int32_t, std::string> rows[] = {
      {"u", true, kStartUpgrade, "1:LST1\n" + kSingle},
      {"gu", true, kStartSeveralUpgrade, "1:LST1 2:LST1\n" + kSeveral},
      {"gug", false, kStartNormal, "1:LST1 2:LST1 3:LST1\n" + kRefusal},
      {"fg", true, kStartSeveralUpgrade, "1:LST1 2:LST1 " + row + kSeveral},
      {"f", false, kStartNormal, "1:LST1 " + row + kRefusal}};
  for (const auto& [kinds, allowUpgrade, result, told] : rows) {
    SetUp();
    for (std::size_t i = 0; i < kinds.size(); ++i) plug(goodBox(1234567));
    library().answer = [this, of = kinds, asked = 0](int32_t handle,
                                                     const std::string& request) mutable {
      const auto at = static_cast<std::size_t>(handle - 1);
      const bool third = of[at] == 'f' && request == "LST1" && ++asked == 3;
      return third || of[at] == 'u' ? Reply{"ERR,22", 80} : boxes[at].at(request);
    };
    EXPECT_EQ(scan(allowUpgrade), result);
    EXPECT_EQ(story(), kHead + told);
    EXPECT_EQ(table() == "", kinds != "fg");
  }
}

TEST_F(ConnectionTest, NoBoxEightBoxesAndTooMany) {
  for (const int32_t devices : {0, -1004}) {
    library().devices = devices;
    EXPECT_EQ(scan(true), kStartNormal);
    EXPECT_EQ(story(), kHead + kNotConnected);
  }
  for (int i = 1; i <= 8; ++i) plug(goodBox(1000000 + i));
  EXPECT_EQ(scan(true), kStartNormal);
  EXPECT_TRUE(story().ends_with(goodStory("8", "1000008") + "log Connected = 8Unit\n"));
  library().devices = 9;
  EXPECT_EQ(scan(true), kStartTooMany);
  EXPECT_EQ(story(),
            "status\nclose\ncount\nlog Maximum number of connection is 8.\n"
            "log Confirm the connection.\n");
}

TEST_F(ConnectionTest, AFailureInTheMiddleKeepsTheRowsSoFar) {
  const std::tuple<const char*, std::string, std::string> rows[] = {
      {"MET", "2:LST1 2:LST2 2:MET\n" + kNotConnected, ""},
      {"FLN", goodStory("2", "1000002", "VK-480Q", kNormal, ""),
       "2: 2 1000002 2 0 1 0101 000/000\n"}};
  for (const auto& [lost, told, row] : rows) {
    SetUp();
    for (int i = 1; i <= 3; ++i) plug(goodBox(1000000 + i));
    boxes[1][lost] = {"", -1005};
    EXPECT_EQ(scan(true), kStartNormal);
    EXPECT_EQ(story(), kHead + "1:LST1 2:LST1 3:LST1 " + goodStory("1", "1000001") + told);
    EXPECT_EQ(table(), "1: 1 1000001 2 0 1 0101 003/120\n" + row);
  }
}

TEST_F(ConnectionTest, AStatusThatDoesNotComeLeavesTheReplyBefore) {
  plug(goodBox(1234567));
  boxes[0]["STA20"] = {"", -1005};
  gLastReply = padded("03,26/01/05,09:30:00,00,1010,7654321");
  EXPECT_EQ(scan(true), kStartNormal);
  EXPECT_EQ(story(), kHead + "1:LST1 " + goodStory("1", "7654321") + "log Connected = 1Unit\n");
  EXPECT_EQ(table(), "1: 1 7654321 2 0 3 1010 003/120\n");
}

class PollTest : public ConnectionTest {
 protected:
  void SetUp() override {
    ConnectionTest::SetUp();
    for (int i = 1; i <= 3; ++i) {
      plug(goodBox(1000000 + i));
      place(static_cast<std::size_t>(i), i, 1000000 + i);
    }
  }
};

TEST_F(PollTest, AsksEveryConnectedRowUpToALostBox) {
  boxes[0]["STA20"].bytes = status("03", 1000001);
  place(2, kLostHandle, 1000002);
  boxes[2]["STA20"].bytes = status("99", 1000003);
  boxes[2]["FLN"].bytes = "ERR,50";
  EXPECT_TRUE(pollStatus());
  EXPECT_EQ(story(), "1:STA20 1:FLN 3:STA20 3:FLN\n");
  const std::string others =
      "2: -1001 1000002 2 1 1 0000 000/000\n3: 3 1000003 2 0 1 0000 Un-insert\n";
  EXPECT_EQ(table(), "1: 1 1000001 2 0 3 0000 003/120\n" + others);
  gUSBBusy = 1;
  EXPECT_FALSE(pollStatus());
  gUSBBusy = 0;
  boxes[0]["STA20"].bytes = status("04", 1000001);
  boxes[0]["FLN"] = {"", -1005};
  EXPECT_FALSE(pollStatus());
  EXPECT_EQ(story(), "1:STA20 1:FLN\n");
  EXPECT_EQ(table(), "1: -1 1000001 2 0 4 0000 003/120\n" + others);
  EXPECT_TRUE(pollStatus());
  boxes[2]["STA20"] = {"", -1005};
  EXPECT_FALSE(pollStatus());
  EXPECT_EQ(story(), "3:STA20 3:FLN 3:STA20\n");
  EXPECT_EQ(gBoxTable[3].handle, -1);
}

TEST_F(PollTest, OnlyANegativeResultLosesABox) {
  library().writeResults = {63};  // the status that follows is the reply from before
  gLastReply = "07,26/01/05,09:30:00,01,0000,1000001";
  boxes[1]["FLN"] = {"", 0};  // the card count is taken from the status
  boxes[2]["FLN"].bytes = "garbage";
  EXPECT_TRUE(pollStatus());
  EXPECT_EQ(table(),
            "1: 1 1000001 2 1 7 0000 003/120\n2: 2 1000002 2 0 1 0000 01,/6/0\n"
            "3: 3 1000003 2 0 1 0000 Error\n");
  boxes[0]["STA20"].bytes = "ERR,41";
  EXPECT_TRUE(pollStatus());
  EXPECT_EQ(table().substr(0, 32), "1: 1 1000001 2 0 7 0000 003/120\n");
}

TEST_F(PollTest, ReadsTheStateBackAfterAButton) {
  boxes[1]["STA20"].bytes = status("02", 1000002);
  readBackState(2);
  for (const Reply& lost : {Reply{"ERR,41", 80}, Reply{"", -1005}}) {
    boxes[1]["STA20"] = lost;
    gLastReply = "05";
    readBackState(2);
  }
  EXPECT_EQ(table().substr(32, 32), "2: 2 1000002 2 1 2 0000 000/000\n");
  EXPECT_EQ(story(), "2:STA20 2:STA20 2:STA20\n");
}

}  // namespace
}  // namespace vk
