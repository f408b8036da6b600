// SPDX-License-Identifier: MIT
#include "link/mdlUSBCommand.h"

#include <functional>
#include <string>
#include <utility>

#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::library;

constexpr int32_t kSerial = 1000003;

struct Command {
  const char* request;  ///< device and bytes as they go out
  std::function<int32_t()> call;
};

struct Answer {
  const char* reply;
  int32_t read = 80, write = kUsbWriteOk;
};

const Answer kAnswers[] = {{"END\r\n"}, {"01,END,2"},    {"ERR,20\r\n"}, {"ERR,20 END"},
                           {"ERR,xx"},  {"#01,99:\xff"}, {"1", 1},       {"", 0},
                           {"", -1005}, {"", 80, 63},    {"", 80, -1007}};

class CommandTest : public vktest::LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    place(2, 3, kSerial);
  }

  /// The result of each answer, with "!" when its box was shown, "+" when the reply was kept, "t"
  /// when the time limit was raised and put back, and what else went over the wire.
  static std::string behaviour(const Command& command) {
    std::string text;
    for (const Answer& answer : kAnswers) {
      library() = {};
      library().writeResults = {answer.write};
      library().replies = {{answer.reply, answer.read}};
      gLastReply = "old";
      const int32_t result = command.call();
      EXPECT_EQ(gUSBBusy, 0) << command.request;
      std::string transcript = library().takeTranscript();
      const auto replace = [&](const std::string& part, const char* mark) {
        const std::size_t at = transcript.find(part);
        if (at != std::string::npos) transcript.replace(at, part.size(), mark);
      };
      const std::string read = "read(" + std::string(command.request, 1) + ")\n";
      replace("write(" + std::string(command.request) + ")\n" + (answer.write == 64 ? read : ""),
              "");
      replace("timeout(60)\n", "t");
      if (transcript.starts_with("t")) replace("timeout(7)\n", "");
      const std::size_t box = transcript.find("busy box[USB Error][");
      if (box != std::string::npos && transcript.ends_with("][ok][exclamation]\n")) {
        transcript.replace(box, std::string::npos, "!");
      }
      text += (text.empty() ? "" : " ") + std::to_string(result) + transcript;
      if (gLastReply == padded(answer.reply)) {
        text += "+";
      } else if (gLastReply != "old") {
        text += "[" + gLastReply + "]";
      }
    }
    return text;
  }
};

TEST_F(CommandTest, AnswersToEachCommand) {
  const char* const shown = "0 0 20! 0 100! 100! 100! 0! -1005! 63! -1007!";
  const char* const silent = "0 0 20 0 100 100 100 0 -1005 63 -1007";
  const char* const listing = "0+ 0+ 0+ 0+ 0+ 0+ 0+ 0! -1005! 63! -1007!";
  const char* const status = "0+ 0+ 0+ 0+ 0+ 0+ 0+ 0 -1005 63 -1007";
  const char* const conditions = "405050505PSPSPSPSCUUUU+010N000N000N000200U000128K";
  const std::string set = "3,SET" + std::string(conditions);
  const std::pair<Command, const char*> rows[] = {
      {{"3,RTM26/1/5/9:30:0", [] { return usbRTM(kSerial, "26/1/5/9:30:0"); }}, shown},
      {{set.c_str(), [=] { return usbSET(kSerial, conditions); }}, shown},
      {{"3,UNTue,ue,ue,ue", [] { return usbUNT(kSerial, "ue,ue,ue,ue"); }}, shown},
      {{"3,CEF1.0,2.0,3.0,4.0", [] { return usbCEF(kSerial, "1.0,2.0,3.0,4.0"); }}, shown},
      {{"3,BAL4", [] { return usbBAL(kSerial, 4); }}, shown},
      {{"3,RUN", [] { return usbRUN(kSerial); }}, shown},
      {{"3,HLT", [] { return usbHLT(kSerial); }}, shown},
      {{"3,MTR", [] { return usbMTR(kSerial); }}, shown},
      {{"3,FMT", [] { return usbFMT(kSerial); }}, shown},
      {{"3,DMC2,1", [] { return usbDMC(kSerial, 2, 1); }}, shown},
      {{"3,CAL1", [] { return usbCAL(kSerial, 1); }}, shown},
      {{"1,SLN0012345", [] { return usbSLN(12345); }}, shown},
      {{"3,ADJ1,48", [] { return usbADJ(kSerial, 1, 48); }}, silent},
      {{"3,ADJ4,53,-1", [] { return usbADJ(kSerial, 4, 53, -1); }}, silent},
      {{"1,PWE0000002048,1", [] { return usbPWE(1, 131072); }}, silent},
      {{"1,PWE0000006144,3", [] { return usbPWE(3, 393216); }}, silent},
      {{"3,LST0", [] { return usbLST(kSerial, 0); }}, listing},
      {{"3,LST1", [] { return usbLST(kSerial, 12); }}, listing},
      {{"7,STA20", [] { return usbSTA(7); }}, status},
      {{"3,FLN", [] { return usbFLN(kSerial); }}, "100 0+ 20 20 100 0+ 100 0 -1005 63 -1007"},
      {{"3,MET", [] { return usbMET(kSerial); }}, "100 0[01] 20 20 100 0[01] 100 0 -1005 63 -1007"},
      {{"3,CHK4", [] { return usbCHK(kSerial, 4); }},
       "0t+ 0t+ 20t! 20t! 100t! 0t+ 0t+ 0t! -1005t! 63t! -1007t!"},
  };
  for (const auto& [command, expected] : rows) {
    EXPECT_EQ(behaviour(command), expected) << command.request;
  }
}

TEST_F(CommandTest, ASerialOfAnotherLengthIsNotWritten) {
  for (const int32_t serial : {-1, 10000000}) EXPECT_EQ(usbSLN(serial), 20);
  const std::string box = "busy box[USB Error][Parameter Error[ERROR-20]][ok][exclamation]\n";
  EXPECT_EQ(library().takeTranscript(), box + box);
}

TEST_F(CommandTest, StatusSlices) {
  vktest::expectAnswers(R"(
01,26/01/05,09:30:00,00,0110,1234567=1 26/01/05 09:30:00 0 0110 1234567|
98,26/12/31,23:59:59,01,1111,0000042=98 26/12/31 23:59:59 1 1111 42|
00 26/01/05 09:30:00  1 2x 1 9999999=0 26/01/05 09:30:00 1 0001 9999999|
99,26/01/05,09:30:00,02,0000,12x4567=0 26/01/05 09:30:00 0 0000 0|
-1,26/01/05,09:30:00,-1,0000,1234567=0 26/01/05 09:30:00 0 0000 1234567|5=5   0 0000 0)",
                        [](const std::string& reply) {
                          gLastReply = reply;
                          std::string flags;
                          for (int i = 1; i <= kChannels; ++i)
                            flags += std::to_string(staChFlag(i));
                          return std::to_string(staBoxState()) + " " + staDate() + " " + staTime() +
                                 " " + std::to_string(staSyncMode()) + " " + flags + " " +
                                 std::to_string(staSerial());
                        });
  gLastReply = "012,345  ";
  vktest::expectAnswers(
      "0=012/345|50=Un-insert|100=Error|51=|-1005=",
      [](const std::string& result) { return fileCountTextOf(std::stoi(result)); });
}

TEST_F(CommandTest, ClockTextWithoutZerosAndCountersThatStartAgain) {
  EXPECT_EQ(rtmText({2026, 12, 31, 23, 59, 59}), "26/12/31/23:59:59");
  EXPECT_EQ(rtmText({2005, 2, 3, 4, 5, 6}), "5/2/3/4:5:6");
  int32_t counter = 1999999999;
  countUp(counter);
  EXPECT_EQ(counter, 2000000000);
  countUp(counter);
  EXPECT_EQ(counter, 0);
}

}  // namespace
}  // namespace vk
