// SPDX-License-Identifier: MIT
#include "instrument/simulator/commands.h"

#include <gtest/gtest.h>

#include "tests/instrument/simulator/bench.h"

namespace vksim {
namespace {

constexpr const char* kTwoBoxes = R"(
[box 4810021]
model = VK-480Qe
role = master
signal1 = flat 0 1000 1200
signal2 = flat 0 1000 -80
signal3 = flat 0 1000 90000
signal4 = open
recording = 1 200U 1000
[box 2400052]
model = VK-240Q
boot_rom = 0.98
main_rom = 1.55
)";

class Commands : public testing::Test {
 protected:
  Bench bench{kTwoBoxes};

  /// The requests between the bars that are not answered by that reply.
  std::string others(int handle, const std::string& reply, std::string_view requests) {
    std::string all;
    for (const auto request : items(requests))
      if (bench.transcript(handle, request) != reply) all += std::string(request) + " ";
    return all;
  }
};

TEST_F(Commands, AnswerInTheirLayouts) {
  EXPECT_EQ(bench.transcript(1, "STA20"), "64/48:01 26/01/05 09:30:00 00 0000 4810021 1.02 2.10$");
  EXPECT_EQ(bench.transcript(2, "STA20"), "64/48:01 26/01/05 09:30:00 01 0000 2400052 0.98 1.55$");
  EXPECT_EQ(bench.asks(1, "LST0|LST1|LST2"),
            "40505050507070707CUUUU+010N000N000N000200U000128K2222 ue,ue,ue,ue "
            "1.000000,1.000000,1.000000,1.000000 ");
  EXPECT_EQ(bench.asks(2, "LST0|MET|FLN|MON0|CHK4"),
            "405050505PSPSPSPSCUUUU+010N000N000N000200U000128K ERR,22 000,254 "
            "+00000+00000+00000+00000 000412,038250,000655,041730 ");
  EXPECT_EQ(bench.asks(1, "MET|FLN|MON0|CHK0|CHK1|CHK2|CHK3|CHK4|FMT|FLN"),
            "03 001,253 +01200-00080+05250+05250 END END 0001 END ERR,53 END 000,254 ");
  EXPECT_EQ(bench.asks(1, "ADJ1,5|ADJ1,49,-1|SLN4810099|STA20"),
            "END END END 01 26/01/05 09:30:00 00 0000 4810099 1.02 2.10 ");
}

TEST_F(Commands, ThatAreWrongAreRefused) {
  EXPECT_EQ(others(1, "64/8:ERR,22$", "|ST|XYZ|sta20|RUN1"), "");
  EXPECT_EQ(others(1, "64/8:ERR,20$",
                   "STA200|STA|LST3|LST|MON1|CHK5|BAL0|BAL5|BAL12|DMC1|DMC1,2|DMC5,0|CAL3|SLN123|"
                   "SLN12345678|ADJ5,1|ADJ1|ADJ1,2,x|SETnonsense|UNTue,ue,ue|UNTue,ue,ue,ue,ue|"
                   "UNTue,,ue,ue|CEF1,1,1|"
                   "CEF1,0,1,1|CEF1,x,1,1|CEF1,1,1,99999999|PWE0000002048,2|PWE0000002047,1"),
            "");
  EXPECT_EQ(bench.asks(1, "BAL3|BAL4|HLT|MTR|HFLNOSUCH|HFLDAT00001.DAT"),
            "ERR,42 ERR,42 ERR,11 ERR,15 ERR,51 ERR,51 ");
  EXPECT_EQ(bench.asks(2, "CAL1|RUN|HLT|MTR"), "ERR,22 ERR,12 ERR,12 ERR,12 ");
}

TEST_F(Commands, KeepWhatTheyAreTold) {
  EXPECT_EQ(bench.asks(1,
                       "SET20604050507060707SDUUU-020N000N000N000001M050004K2222|LST0|UNTkN,kg/"
                       "mm2, ,###|LST1|CEF0.000010,-2.5,9999999,1E+00|LST2"),
            "END 20604050507060707SDUUU-020N000N000N000001M050004K2222 END kN,kg/mm2, ,### END "
            "0.000010,-2.5,9999999,1E+00 ");
  EXPECT_EQ(bench.asks(1, "DMC2,1|STA20|BAL2|BAL3|MON0"),
            "END 01 26/01/05 09:30:00 00 0100 4810021 1.02 2.10 ERR,20 ERR,20 "
            "+01200-00080------------ ");
}

TEST_F(Commands, ClockIsSetAndRuns) {
  const auto set = [&](const std::string& clock) {
    return bench.asks(1, "RTM" + clock + "|STA20").erase(4, 3).substr(0, 21);
  };
  EXPECT_EQ(set("26/12/31/23:59:59"), "END 26/12/31 23:59:59");
  EXPECT_EQ(set("24/2/29/0:0:0"), "END 24/02/29 00:00:00");
  EXPECT_EQ(
      others(1, "64/8:ERR,20$",
             "RTM23/2/29/0:0:0|RTM26/1/0/0:0:0|RTM26/1/1 0:0:0|RTM26/1/1/24:0:0|RTM2026/1/1/0:0:0"),
      "");
  bench.clock.wait(90 * kSecond);
  EXPECT_EQ(bench.ask(1, "STA20").substr(3, 17), "24/02/29 00:01:30");
}

TEST_F(Commands, BalanceZeroesAndCalibrationShifts) {
  EXPECT_EQ(bench.asks(1, "BAL1|BAL2|MON0|CAL1|MON0|CAL2|MON0|CAL0|MON0"),
            "END END +00000+00000+05250+05250 END +01000+01000+05250+05250 "
            "END -01000-01000+05250+05250 END +00000+00000+05250+05250 ");
}

TEST_F(Commands, ReadingFollowsRangeAndExcitation) {
  std::string readings;  // of 1200 microstrain
  for (const char* setting : {"242", "232", "032", "051", "050", "150", "342"}) {
    std::string text(factoryConditions(Model::kVK480Qe));
    text.replace(1, 2, setting, 2);
    text[49] = setting[2];
    readings += bench.asks(1, "SET" + text + "|MON0").substr(0, 10) + " ";
  }
  EXPECT_EQ(readings,
            "END +12000 END +10500 END +01050 END +00300 END +00000 END +01200 END +12000 ");
}

TEST_F(Commands, AreRefusedDuringMeasurement) {
  ASSERT_EQ(bench.ask(1, "RUN"), "END");
  EXPECT_EQ(others(1, "64/8:ERR,10$",
                   "RUN|SET|UNT|CEF|RTM|CHK0|BAL1|FMT|RTD|HFLDAT00001|DATDAT00001.DAT|DMC1,0|CAL0|"
                   "SLN1234567|ADJ1,1|STA20|LST0|MON0|FLN|MET"),
            "STA20 LST0 MON0 FLN MET ");
}

TEST_F(Commands, UpgradeModeKnowsOnlyTheUpgrade) {
  bench.load("[box 4800001]\nmodel = VK-480Q\nupgrade_mode = yes\n");
  EXPECT_EQ(bench.asks(1, "LST1|STA20|RUN|FLN|MET"), "ERR,22 ERR,22 ERR,22 ERR,22 02 ");
  std::string replies;
  const auto send = [&](std::int64_t length) {
    EXPECT_EQ(bench.bus.writeB(1, length), 64);
    std::string buffer(kReplyBuffer, ' ');
    EXPECT_GT(bench.bus.readA(1, buffer.data()), 0);
    replies += buffer.substr(0, buffer.find('\r')) + " ";
  };
  for (const std::int64_t length : {393216, 393152, 131072}) {
    EXPECT_EQ(bench.asks(1, "PWE0000006144,1|PWE0000006144,2|PWE0000006144,3"), "END END END ");
    send(length);
  }
  send(393216);  // an image that nothing announced
  EXPECT_EQ(replies, "END ERR,30 ERR,30 ERR,22 ");
}

}  // namespace
}  // namespace vksim
