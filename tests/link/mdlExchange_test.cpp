// SPDX-License-Identifier: MIT
#include "link/mdlExchange.h"

#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::library;

class ExchangeTest : public vktest::LinkTest {};

TEST_F(ExchangeTest, SendsNoMoreThanTheTextHoldsAndReadsIntoFreshBlanks) {
  for (const int32_t length : {kWholeText, 5, 10}) EXPECT_EQ(sendText(3, "STA200", length), 64);
  EXPECT_EQ(library().takeTranscript(), "write(3,STA200)\nwrite(3,STA20)\nwrite(3,STA200)\n");
  std::string reply = "something longer that was here before";
  library().reply(std::string("\0x\0", 3));
  EXPECT_EQ(receiveText(1, reply), 80);
  EXPECT_EQ(reply, padded(std::string("\0x\0", 3)));
}

TEST_F(ExchangeTest, NumberOfAnErrorReply) {
  vktest::expectAnswers(
      "ERR,50=50|ERR,5 =5|ERR,00=0|ERR-42=42|ERR,507=50|ERR,xx=100|ERR=100|ERR,-1=100|err,50=100|"
      " ERR,50=100|=100|END=100",
      [](const std::string& reply) { return std::to_string(replyErrorNumber(reply)); });
}

TEST_F(ExchangeTest, KeepsTheReplyOnlyWhenGoodAndAsked) {
  const std::tuple<const char*, Keep, const char*, std::string> rows[] = {
      {"END", Keep::kReply, "", padded("END")},
      {"END", Keep::kReply, "01", "01"},
      {"END", Keep::kNothing, "01", "old"},
      {"ERR,50", Keep::kReply, "01", "old"}};
  for (const auto& [reply, keep, instead, kept] : rows) {
    gLastReply = "old";
    library().answer = [&](int32_t, const std::string&) {
      EXPECT_NE(gUSBBusy, 0);
      return vktest::ScriptedLibrary::Reply{reply, 80};
    };
    const Exchange what{.handle = 1, .request = "XYZ", .keep = keep, .keepInstead = instead};
    EXPECT_EQ(exchange(what), reply == std::string("END") ? 0 : 50);
    EXPECT_EQ(gLastReply, kept);
    EXPECT_EQ(gUSBBusy, 0);
  }
}

TEST_F(ExchangeTest, OneInsideAnotherLeavesTheFlagUp) {
  library().blocks.assign(32, {std::string(512, '\0'), 512});
  library().reply("END");
  desk.yields = {[] { EXPECT_EQ(usbRUN(1000001), 0); }, [] { EXPECT_EQ(gUSBBusy, 1); }};
  EXPECT_EQ(usbRTD(1000001), 0);
  EXPECT_EQ(desk.yieldCount, 32);
  EXPECT_EQ(gUSBBusy, 0);
}

TEST_F(ExchangeTest, ATimeoutGivesBackTheOneBefore) {
  {
    const ReadTimeoutGuard upgrade(kTimeoutUpgrade);
    const ReadTimeoutGuard check(kTimeoutCheck);
  }
  EXPECT_EQ(library().takeTranscript(), "timeout(40)\ntimeout(60)\ntimeout(40)\ntimeout(7)\n");
}

}  // namespace
}  // namespace vk
