// SPDX-License-Identifier: MIT
#include "instrument/simulator/scenario.h"

#include <gtest/gtest.h>

#include "tests/instrument/simulator/bench.h"
#include "tests/support/data_folder.h"

namespace vksim {
namespace {

TEST(Scenario, DefaultBusIsWhole) {
  const Scenario scenario = parseScenario("");
  EXPECT_EQ(scenario.problems, std::vector<std::string>{});
  EXPECT_EQ(scenario.timing.exchangeMs, 1.5);
  Bench bench("");
  applyScenario(scenario, bench.bus);
  std::string seen;
  for (const auto& box : bench.bus.rig.recorders) {
    seen += std::string(modelName(box->model)) + (box->role == Role::kMaster ? " master" : "");
    for (const CardFile& file : box->card.files)
      seen += ' ' + std::to_string(file.recording.dataBytes());
    seen += '\n';
  }
  EXPECT_EQ(seen,
            "VK-480Qe master 131072 65538 4194304\n"
            "VK-480Q 240000 65536\n"
            "VK-240Q 32768 1048576\n");
  // The master waits for a manual trigger, balanced or not.
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(bench.ask(1, "RUN"), "END");
    bench.clock.wait(60 * kSecond);
    EXPECT_EQ(bench.state(1), 2);
    EXPECT_EQ(bench.asks(1, "HLT|BAL1"), "END END ");
  }
}

TEST(Scenario, BadLinesAreToldAndSkipped) {
  const auto problems = [](std::string_view line) {
    return parseScenario("[box 1234567]\n" + std::string(line) + "\n").problems;
  };
  for (const auto line :
       items("model = VK-240Qe|role = slave|plugged = no|card = full|card_mb = 1|card_speed = "
             "medium|signal4 = open|signal1 = sine -1.5 10000 -3e2|recording = 2 020U "
             "1000|error.RUN = 10|error = 10 x3|late.MON = 8000 x1|units = a,b,c,d|# "
             "remark|plugged = yes # remark|  plugged\t=  yes \r|"))
    EXPECT_EQ(problems(line), std::vector<std::string>{}) << line;
  for (const auto line :
       items("model = VK-240|role = both|plugged = 0|card = half|card_mb = 0|card_speed = "
             "3|signal5 = open|signal = open|signal1 = sine 100 3|signal1 = sine 100 20000|signal1 "
             "= sine x|signal1 = saw 1|signal1 = sine 1 1000 0 0|recording = 3 020U 1000|recording "
             "= 2 030U 1000|recording = 2 020U 0|recording = 2 020U|recording = 4 020U "
             "268435457|error.RUN = 100|error.RUNX = 10|error. = 10|error = 10 3|late = "
             "soon|directory = 6|units = a,b,c|boot_rom = 1.0|speed = 2|conditions =|nonsense|= 3"))
    EXPECT_EQ(problems(line), std::vector{"line 2: cannot use \"" + std::string(line) + "\""});
  const Scenario scenario = parseScenario(
      "latency_ms = 0\nspeed = fast\nbus = default\n[box 12]\nmodel = VK-480Q\n[recorder]\n"
      "[box 4810021]\nplugged = no\ncolour = red # no such key\n");
  EXPECT_EQ(scenario.problems,
            (std::vector<std::string>{
                "line 2: cannot use \"speed = fast\"", "line 4: cannot use \"[box 12]\"",
                "line 6: cannot use \"[recorder]\"", "line 9: cannot use \"colour = red\""}));
  EXPECT_EQ(scenario.speed, 1);
  ASSERT_EQ(scenario.boxes.size(), 3U);
  EXPECT_FALSE(scenario.boxes[0].plugged);
  EXPECT_EQ(scenario.boxes[0].model, Model::kVK480Qe) << "what is not named stays";
}

TEST(Scenario, ShippedExampleIsUnderstood) {
  std::string text = vktest::DataFolder::bytesOf(VK_SCENARIO_EXAMPLE);
  EXPECT_EQ(parseScenario(text).problems, std::vector<std::string>{});
  EXPECT_EQ(parseScenario(text).boxes.size(), 2U);
  // The faults that stand there as remarks have to be right as well.
  for (auto at = text.find("\n# "); at != std::string::npos; at = text.find("\n# "))
    text.erase(at + 1, 2);
  EXPECT_EQ(parseScenario(text).boxes.at(1).faults.size(), 4U);
}

TEST(Scenario, ChangesAreFollowedAndCardsStay) {
  const std::string master = "[box 4800001]\nrole = master\n";
  const std::string recording = "recording = 1 200U 1000\n";
  Bench bench(master + recording + "[box 4800002]\n");
  ASSERT_EQ(bench.asks(1, "UNTkN,kN,kN,kN|RUN"), "END END ");
  bench.load(master + recording + "signal1 = step 2000 1000\nerror.MON = 41\n[box 4800003]\n");
  EXPECT_EQ(bench.asks(1, "MON0|LST1|FLN"), "ERR,41 kN,kN,kN,kN 001,253 ")
      << "what lay on the card is not put there again";
  EXPECT_EQ(bench.transcript(2, "MET"), "-1001/-1001:") << "a box that is gone";
  EXPECT_EQ(bench.bus.countDevices(), 2);
  EXPECT_EQ(bench.ask(2, "STA20").substr(29, 7), "4800003");
  EXPECT_EQ(bench.state(1), 2);
  bench.clock.wait(kSecond);
  EXPECT_EQ(bench.state(1), 3) << "the new signal triggers what is armed";
  bench.load(master + "card = out\n");
  EXPECT_EQ(bench.ask(1, "FLN"), "ERR,50");
  bench.load(master);
  EXPECT_EQ(bench.asks(1, "FLN|MON0").substr(0, 11), "001,253 +00") << "the same card is back";
}

TEST(Watch, TellsChangesAtMostEveryTenthOfASecond) {
  const vktest::DataFolder folder;
  const auto path = folder.path() / "sim.conf";
  ScenarioWatch watch(path);
  std::vector<std::string> told;
  std::string boxes;  // their number at each look, "-" when there is nothing to apply
  const auto poll = [&](Micros now) {
    const auto scenario = watch.poll(now, told);
    boxes += scenario ? std::to_string(scenario->boxes.size()) : "-";
  };
  poll(0);  // no file: the default bus
  poll(200'000);
  const std::string one = "bus = empty\n[box 1234567]\nbad line\n";
  folder.put("sim.conf", one);
  poll(299'999);  // too early to look
  poll(300'000);
  poll(400'000);
  folder.put("sim.conf", one + "[box 1234568]\n");
  poll(500'000);
  EXPECT_EQ(told, std::vector{path.string() + ": line 3: cannot use \"bad line\""}) << "once";
  folder.put("sim.conf", std::string("\0\xFF[box \n[box 1234567\n=\n", 24));
  poll(600'000);
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  poll(700'000);
  EXPECT_EQ(boxes, "3--1-233");
}

}  // namespace
}  // namespace vksim
