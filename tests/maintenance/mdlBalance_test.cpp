// SPDX-License-Identifier: MIT
#include "maintenance/mdlBalance.h"

#include <cmath>

#include "tests/support/link_fixture.h"

namespace vktest {
namespace {

using vk::BalanceStep;

class BalanceTest : public LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    place(1, 1, 100);
    place(2, vk::kLostHandle, 200);
    place(5, 3, 300);
    vk::gBoxTable[1].channelMode = 0;
    vk::gBoxTable[2].channelMode = 1;
    vk::gBoxTable[5].channelMode = 2;
    library().answer = [this](int32_t, const std::string&) {
      const std::string reply = replies.empty() ? "END" : replies.front();
      if (!replies.empty()) replies.pop_front();
      return ScriptedLibrary::Reply{padded(reply + "\r\n"), 80};
    };
  }
  const vk::JobView view{
      [](const std::string& first, const std::string& second) {
        library().transcript.push_back(first + second);
      },
      [](double part) { library().transcript.push_back(std::to_string(std::lround(part * 100))); },
      {}};
  std::deque<std::string> replies;
};

TEST_F(BalanceTest, WorkOfASelection) {
  using Steps = std::vector<BalanceStep>;
  EXPECT_EQ(vk::balanceSteps(300, 3), (Steps{{300, 3}}));
  EXPECT_EQ(vk::balanceSteps(0, 0),
            (Steps{{100, 1}, {200, 1}, {200, 2}, {300, 1}, {300, 2}, {300, 3}, {300, 4}}));
  EXPECT_EQ(vk::balanceSteps(0, 2), (Steps{{100, 2}, {200, 2}, {300, 2}}));
  EXPECT_EQ(vk::balanceSteps(555, 0), Steps{});
}

TEST_F(BalanceTest, AChannelThatIsOffCountsAsDoneAndAFailureAsks) {
  replies = {"ERR,20", "END", "ERR,30", "ERR,30"};
  desk.answers = {vk::BoxAnswer::kOk, vk::BoxAnswer::kOk, vk::BoxAnswer::kYes, vk::BoxAnswer::kOk,
                  vk::BoxAnswer::kNo};
  EXPECT_EQ(vk::runBalance({{100, 1}, {300, 4}, {300, 1}, {300, 2}}, view), 3U);
  const std::string failed =
      "busy box[USB Error][EEPROM Program Write Error[ERROR-30]][ok][exclamation]\n"
      "idle box[Balance Error][Balance Error has occurred.continue?][yes-no][exclamation]\n";
  EXPECT_EQ(library().takeTranscript(),
            "Serial Number 0000100  Channel1  Balancing\nwrite(1,BAL1)\nread(1)\n"
            "busy box[USB Error][Parameter Error[ERROR-20]][ok][exclamation]\n25\n"
            "Serial Number 0000300  Channel4  Balancing\nwrite(3,BAL4)\nread(3)\n50\n"
            "Serial Number 0000300  Channel1  Balancing\nwrite(3,BAL1)\nread(3)\n" +
                failed +
                "75\nSerial Number 0000300  Channel2  Balancing\nwrite(3,BAL2)\nread(3)\n" +
                failed);
}

TEST_F(BalanceTest, AnEndingProgramBalancesNothingMore) {
  desk.yields = {[] {}, [this] { desk.endProgram(); }};
  EXPECT_EQ(vk::runBalance({{100, 1}, {300, 1}, {300, 2}}, view), 1U);
  EXPECT_TRUE(
      library().takeTranscript().ends_with("33\nSerial Number 0000300  Channel1  Balancing\n"));
}

TEST_F(BalanceTest, InitialisesACardAfterTheQuestion) {
  desk.answers = {vk::BoxAnswer::kCancel};
  EXPECT_FALSE(vk::askCardInit(52));
  EXPECT_TRUE(vk::askCardInit(52));
  const std::string question =
      "idle box[Initializing CF card][Serial Number 0000052 CF card is initialized.\r\nOK?]"
      "[ok-cancel][question]\n";
  EXPECT_EQ(library().takeTranscript(), question + question);
  const int64_t before = desk.clock;
  EXPECT_EQ(vk::runCardInit(100, view), 0);
  EXPECT_EQ(library().takeTranscript(), "CF card being initialized\nwrite(1,FMT)\nread(1)\n");
  EXPECT_GE(desk.clock - before, 1000);
}

}  // namespace
}  // namespace vktest
