// SPDX-License-Identifier: MIT
//
// The measurement as the wire shows it: states over time, what triggers, what lands on the card.
#include <gtest/gtest.h>

#include "tests/instrument/simulator/bench.h"

namespace vksim {
namespace {

// One channel, 1 ms, 1K samples: 1.024 s. A ramp of 10 s from -4000 to 4000 microstrain.
constexpr const char* kMaster = R"(
[box 4800001]
model = VK-480Q
role = master
signal1 = ramp 4000 10000
conditions = 10505050507070707SUUUU+010N000N000N000001M000001K2222
)";

std::string conditions(char mode, const std::string& slopeAndLevel, const std::string& pre) {
  return std::string("10505050507070707") + mode + slopeAndLevel[0] + "UUU" +
         slopeAndLevel.substr(1) + "N000N000N000001M" + pre + "001K2222";
}

class Measure : public testing::Test {
 protected:
  Bench bench{kMaster};

  void set(const std::string& text) { ASSERT_EQ(bench.ask(1, "SET" + text), "END"); }
  // The state after each of the waits, in milliseconds.
  std::string states(std::initializer_list<int> waits) {
    std::string seen;
    for (const int wait : waits) {
      bench.clock.wait(wait * 1000);
      seen += std::to_string(bench.state(1));
    }
    return seen;
  }
};

TEST_F(Measure, SingleWaitsRecordsWritesAndStops) {
  set(conditions('S', "U+010", "000"));
  EXPECT_EQ(bench.asks(1, "RUN|RUN"), "END ERR,10 ");
  // The ramp passes 500 at 5.625 s; writing takes a tenth of a second and a little.
  EXPECT_EQ(states({0, 5624, 1, 1023, 1, 99, 2}), "2233441");
  EXPECT_EQ(bench.asks(1, "HLT|FLN"), "ERR,11 001,253 ");
  const CardFile& file = bench.box(0).card.files.at(0);
  EXPECT_EQ(file.recording.frames, 1024);
  EXPECT_EQ(file.recording.start, 5'625'000);
  EXPECT_NE(file.header.find("\r\nTIME 09:30:05\r\n"), std::string::npos);
}

TEST_F(Measure, ContinueArmsAgainAfterEachRecording) {
  set(conditions('C', "U+010", "000"));
  EXPECT_EQ(bench.ask(1, "RUN"), "END");
  EXPECT_EQ(states({5625, 1024, 102, 8873, 2, 1024}), "342234");
  EXPECT_EQ(bench.ask(1, "HLT"), "END");
  EXPECT_EQ(states({0, 102}), "41") << "writing ends by itself, and nothing is armed again";
  EXPECT_EQ(bench.box(0).card.files.at(1).recording.start, 15'625'256);
}

TEST_F(Measure, FreeRunStartsAtOnceAndASlowCardWritesLonger) {
  set(conditions('F', "U+010", "050"));
  EXPECT_EQ(bench.asks(1, "RUN|MTR"), "END ERR,15 ");
  EXPECT_EQ(states({0, 1023, 1, 102}), "3341");
  EXPECT_EQ(bench.box(0).card.files.at(0).recording.start, 0);
  bench.box(0).card.speed = CardSpeed::kSlow;
  ASSERT_EQ(bench.ask(1, "RUN"), "END");
  EXPECT_EQ(states({1024, 110, 1}), "441");
  bench.bus.rig.setSpeed(10);
  ASSERT_EQ(bench.ask(1, "RUN"), "END");
  EXPECT_EQ(states({102, 1, 98}), "341") << "recorder time runs faster";
  EXPECT_EQ(bench.ask(1, "STA20").substr(3, 17), "26/01/05 09:30:02") << "the clock does not";
}

TEST_F(Measure, TriggersOnLevelAndSlope) {
  // Up through 500 at 5.625 s, up through -1000 at 3.75 s, down in the fall from 4000 to -4000. To
  // stand on the level is not to cross it.
  std::string starts;  // of the first sample
  for (const std::string trigger :
       {"U+010", "U-020", "UP105", "D+010", "DM050", "U+090", "D-090", "UN000", "U+000 flat"}) {
    const bool flat = trigger.ends_with("flat");
    Bench fresh(std::string(kMaster) + (flat ? "signal1 = flat\n" : ""));
    ASSERT_EQ(fresh.asks(1, "SET" + conditions('S', trigger.substr(0, 5), "000") + "|RUN"),
              "END END ");
    fresh.clock.wait(40 * kSecond);
    starts += std::to_string(fresh.state(1)) + ":";
    for (const CardFile& file : fresh.box(0).card.files)
      starts += std::to_string(file.recording.start);
    starts += " ";
  }
  EXPECT_EQ(starts, "1:5625000 1:3750000 1:5656000 1:10000000 1:10000000 2: 2: 2: 2: ");
}

TEST_F(Measure, PreAreaIsCutToWhatWasSampled) {
  // The pre-area and how long it is armed; where the recording starts and what it lasts from the
  // trigger on, in milliseconds.
  const std::tuple<const char*, int, Micros, int> rows[] = {{"000", 3000, 3000, 1024},
                                                            {"050", 3000, 2488, 512},
                                                            {"100", 3000, 1987, 11},
                                                            {"050", 100, 0, 924}};
  for (const auto& [pre, armed, start, lasts] : rows) {
    Bench fresh(kMaster);
    const auto after = [&](int wait) {
      fresh.clock.wait(wait * 1000);
      return fresh.state(1);
    };
    ASSERT_EQ(fresh.asks(1, "SET" + conditions('S', "U+010", pre) + "|RUN"), "END END ");
    EXPECT_EQ(after(armed), 2);
    ASSERT_EQ(fresh.ask(1, "MTR"), "END");
    EXPECT_EQ(after(lasts - 1), 3) << pre << " after " << armed;
    EXPECT_EQ(after(1), 4) << pre << " after " << armed;
    EXPECT_EQ(after(1000), 1);
    const auto& recording = fresh.box(0).card.files.at(0).recording;
    EXPECT_EQ(recording.start, start * 1000) << pre;
    EXPECT_EQ(recording.frames, 1024);
  }
}

TEST_F(Measure, StopKeepsWhatThereIs) {
  set(conditions('C', "U+010", "050"));
  EXPECT_EQ(bench.asks(1, "RUN|HLT"), "END END ") << "while waiting for the trigger";
  EXPECT_EQ(bench.state(1), 1);
  ASSERT_EQ(bench.ask(1, "RUN"), "END");
  bench.clock.wait(2 * kSecond);
  ASSERT_EQ(bench.asks(1, "MTR|MTR"), "END ERR,15 ");
  bench.clock.wait(200'500);
  EXPECT_EQ(bench.ask(1, "HLT"), "END");
  EXPECT_EQ(states({0, 200}), "41");
  ASSERT_EQ(bench.box(0).card.files.size(), 1U);
  EXPECT_NE(bench.box(0).card.files[0].header.find("NUM_SAMPS 712\r\n"), std::string::npos);
}

TEST_F(Measure, FullCardEndsIt) {
  // A recording of 2 KB and its header are a cluster of 16 KB each.
  bench.box(0).card.capacity = 2 << 15;
  set(conditions('F', "U+010", "000"));
  ASSERT_EQ(bench.ask(1, "RUN"), "END");
  bench.clock.wait(2 * kSecond);
  EXPECT_EQ(bench.ask(1, "FLN"), "001,001");
  set(conditions('C', "U+010", "000"));
  ASSERT_EQ(bench.ask(1, "RUN"), "END");
  EXPECT_EQ(states({0, 20000}), "25");
  EXPECT_EQ(bench.asks(1, "FLN|RUN|HLT"), "002,000 ERR,56 END ");
  EXPECT_EQ(bench.state(1), 1);
}

TEST_F(Measure, NeedsACardWithRoomAndNormalConditions) {
  const std::pair<const char*, const char*> rows[] = {{"card = in", "END END 000,254 ERR,10 "},
                                                      {"card = out", "END ERR,50 ERR,50 ERR,50 "},
                                                      {"card = full", "END ERR,56 000,000 END "}};
  for (const auto& [line, replies] : rows) {
    Bench fresh(std::string(kMaster) + line);
    const std::string set = "SET" + conditions('S', "U+090", "000");
    EXPECT_EQ(fresh.asks(1, set + "|RUN|FLN|FMT"), replies) << line;
  }
  Bench spoilt("[box 4800001]\nrole = master\nconditions = ?????\n");
  const std::string set = "SET" + std::string(factoryConditions(Model::kVK480Q));
  EXPECT_EQ(spoilt.asks(1, "LST0|MON0|RUN|" + set + "|RUN"),
            "????? ------------------------ ERR,61 END END ");
}

TEST(Slaves, FollowTheMaster) {
  Bench bench(std::string(kMaster) + R"(
[box 4800002]
conditions = 10505050507070707SUUUU+000N000N000N000002M050002K2222
signal1 = ramp 4000 10000
[box 4800003]
card = out
[box 4800004]
conditions = 10505050507070707SUUUU+010N000N000N000001M000001K2222
upgrade_mode = yes
)");
  const auto statesAfter = [&](Micros wait) {
    bench.clock.wait(wait);
    return std::to_string(bench.state(1)) + std::to_string(bench.state(2)) +
           std::to_string(bench.state(3));
  };
  ASSERT_EQ(bench.asks(1, "SET" + conditions('S', "U+010", "000") + "|RUN"), "END END ");
  EXPECT_EQ(statesAfter(0), "221") << "a slave without a card stays behind";
  EXPECT_EQ(statesAfter(5'624'999), "221") << "a slave does not look at its own signal";
  EXPECT_EQ(statesAfter(1), "331");
  EXPECT_EQ(statesAfter(1'500'000), "131");
  EXPECT_EQ(statesAfter(2 * kSecond), "111");
  const Recording& theirs = bench.box(1).card.files.at(0).recording;
  EXPECT_EQ(theirs.start, 5'625'000 - 1024 * 2000);
  EXPECT_EQ(theirs.frames, 2048);
  EXPECT_TRUE(bench.box(3).card.files.empty());

  ASSERT_EQ(bench.asks(1, "RUN|MTR"), "END END ");
  EXPECT_EQ(statesAfter(100'000), "331");
  ASSERT_EQ(bench.ask(1, "HLT"), "END");
  EXPECT_EQ(statesAfter(0), "441");
}

}  // namespace
}  // namespace vksim
