// SPDX-License-Identifier: MIT
#include "link/mdlConnection.h"
#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::library;

const char* const kValues = "+00123-00045------+00000";

class MonitorCommandTest : public vktest::LinkTest {
 protected:
  /// One letter per attempt: W write fails, R read fails, 0 read gives 0, E error reply,
  /// B reply with a leading blank, + and - good replies.
  static void script(const std::string& attempts) {
    for (const char attempt : attempts) {
      library().writeResults.push_back(attempt == 'W' ? -1007 : 64);
      if (attempt == 'R') library().fail(-1005);
      if (attempt == '0') library().fail(0);
      if (attempt == 'E') library().reply("ERR,41");
      if (attempt == 'B') library().reply(" +00123");
      if (attempt == '+') library().reply(kValues);
      if (attempt == '-') library().reply("------");
    }
  }
  std::string counters() const {
    return "t" + std::to_string(desk.clock) + " " + std::to_string(gCommSendErrCnt) + "," +
           std::to_string(gCommRecvErrCnt) + "," + std::to_string(gCommContentErrCnt);
  }
};

TEST_F(MonitorCommandTest, TwoAllowances) {
  // The result, then after each wait the clock and the counters of sending, receiving and contents.
  vktest::expectAnswers(R"(
+=0|-=0|W+=0; t1000 1,0,0|R-=0; t1000 0,1,0|0+=0; t1000 0,1,0|B+=0; t15000 0,0,1|E+=0; t15000 0,0,1
|WW=-9999; t1000 1,0,0|WR=-9999; t1000 1,0,0|RW=-9999; t1000 0,1,0|BE=100; t15000 0,0,1
|BW+=0; t15000 0,0,1; t16000 1,0,1|BWB=100; t15000 0,0,1; t16000 1,0,1
|WBR=-9999; t1000 1,0,0; t16000 1,0,1)",
                        [&](const std::string& attempts) {
                          SetUp();
                          desk.clock = 0;
                          std::string seen, expected;
                          gLinkEvents.countersChanged = [&] { seen += "; " + counters(); };
                          script(attempts);
                          const std::string result = std::to_string(usbMON(1000001));
                          for (const char attempt : attempts) {
                            expected += "write(1,MON0)\n";
                            if (attempt != 'W') expected += "read(1)\n";
                          }
                          EXPECT_EQ(library().takeTranscript(), expected);
                          const char last = attempts.back();
                          EXPECT_EQ(gLastReply, last == '+'   ? padded(kValues)
                                                : last == '-' ? padded("------")
                                                              : "old");
                          EXPECT_EQ(gUSBBusy, 0);
                          return result + seen;
                        });
}

TEST_F(MonitorCommandTest, ACommandAndAReconnectInsideTheWait) {
  place(1, 1, 1000001);
  script("BR+");
  library().replies.insert(library().replies.begin() + 1, {"END", 80});  // of the command below
  desk.yields = {[&] {
                   EXPECT_FALSE(pollStatus());
                   EXPECT_EQ(usbRUN(1000001), 0);
                   place(1, 2, 1000002);
                   place(2, 5, 1000001);
                 },
                 // The second wait: the flag is still up.
                 [&] { EXPECT_FALSE(pollStatus()); }};
  EXPECT_EQ(usbMON(1000001), 0);
  EXPECT_EQ(library().takeTranscript(),
            "write(1,MON0)\nread(1)\nwrite(1,RUN)\nread(1)\n"
            "write(5,MON0)\nread(5)\nwrite(5,MON0)\nread(5)\n");
  EXPECT_EQ(gUSBBusy, 0);
}

TEST_F(MonitorCommandTest, ANewBoxTableEndsTheWait) {
  for (const char* attempts : {"B+", "R+"}) {
    SetUp();
    script(attempts);
    place(1, 1, 1000001);
    gLinkEvents.countersChanged = [] { ADD_FAILURE() << "the old failure counts"; };
    desk.clock = 0;
    desk.yields = {[&] {
      desk.clock = 200;  // long before the end of the wait
      resetBoxTable();
      place(1, 1, 1000001);
    }};
    EXPECT_EQ(usbMON(1000001), kUsbNoReply);
    EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\n");
    EXPECT_EQ(counters(), "t200 0,0,0");
    EXPECT_EQ(gUSBBusy, 0);
  }
}

TEST_F(MonitorCommandTest, TheSelectorIsOneDigitAndTheProgramMayEndInTheWait) {
  script("+B+");
  desk.yields.push_back([&] { desk.endProgram(); });
  EXPECT_EQ(usbMON(1000001, 12), 0);
  EXPECT_EQ(usbMON(1000001, 3), kUsbNoReply);
  EXPECT_EQ(library().takeTranscript(), "write(1,MON1)\nread(1)\nwrite(1,MON3)\nread(1)\n");
  EXPECT_EQ(gUSBBusy, 0);
}

}  // namespace
}  // namespace vk
