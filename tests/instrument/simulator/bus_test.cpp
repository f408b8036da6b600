// SPDX-License-Identifier: MIT
#include "instrument/simulator/bus.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/instrument/simulator/bench.h"

namespace vksim {
namespace {

const std::string kBoxes =
    "[box 4800001]\nrole = master\nrecording = 1 200U 1000\n[box 4800002]\n[box 4800003]\n";

struct Row {
  const char* fault;
  const char* expected;
};

TEST(Bus, FaultsSpoilWhatTheyName) {
  const char* all = "64/26:+00000+00000+00000+00000$";
  const Row rows[] = {{"", all},
                      {"error.MON = 41", "64/8:ERR,41$"},
                      {"error.RUN = 41", all},
                      {"error = 7", "64/8:ERR,07$"},
                      {"short = 7", "64/7:+00000+"},
                      {"short.MON = 900", all},
                      {"garble = 1", "64/26:#~^@|#~^@|#~^@|#~^@|#~^@$"},
                      {"write = 63", "63/-1005:"},
                      {"read = 0", "64/0:"},
                      {"read.MON = -1009", "64/-1009:"},
                      {"late = 6999", all},
                      {"late = 7001", "64/-1005:"}};
  for (const Row& row : rows) {
    Bench bench(kBoxes + "[box 4800001]\n" + row.fault);
    EXPECT_EQ(bench.transcript(1, "MON0"), row.expected) << row.fault;
  }
}

TEST(Bus, FaultsEndAfterTheirTimes) {
  Bench bench(kBoxes + "[box 4800001]\nerror.RUN = 80 x2\nerror.RUN = 81 x1");
  EXPECT_EQ(bench.asks(1, "RUN|RUN|RUN|RUN"), "ERR,80 ERR,80 ERR,81 END ");
}

TEST(Bus, LateReplyIsTakenForTheNext) {
  Bench bench(kBoxes + "[box 4800001]\nlate.LST = 10000 x1");
  EXPECT_EQ(bench.transcript(1, "LST1"), "64/-1005:");
  EXPECT_EQ(bench.clock.now(), 7 * kSecond) << "the read waits its time-out";
  EXPECT_EQ(bench.ask(1, "MET"), "ue,ue,ue,ue");
  EXPECT_EQ(bench.clock.now(), 10 * kSecond) << "and the next for the late reply";
  EXPECT_EQ(bench.ask(1, "FLN"), "02");
  EXPECT_EQ(bench.ask(2, "MET"), "02") << "each box has replies of its own";
  EXPECT_EQ(bench.bus.close(), 0);
  EXPECT_EQ(bench.ask(1, "LST1"), "ue,ue,ue,ue") << "closing drops what was left";
}

TEST(Bus, TimesPassAsTheyWereSet) {
  Bench bench(kBoxes);
  std::string buffer(kReplyBuffer, ' ');
  bench.bus.setReadTimeout(60);
  EXPECT_EQ(bench.bus.readA(1, buffer.data()), kReadAFailed);
  EXPECT_EQ(bench.clock.now(), 60 * kSecond);
  EXPECT_EQ(buffer, std::string(kReplyBuffer, ' ')) << "the buffer is left as it was";
  bench.bus.timing = {1.5, 1};
  EXPECT_EQ(bench.asks(1, "MET|CHK0"), "02 END ");
  EXPECT_EQ(bench.clock.now() - 60 * kSecond, 2 * 1500 - 1500 + kSecond);
}

TEST(Bus, HandlesAreThoseOfTheLastCount) {
  Bench bench(kBoxes);
  const auto serial = [&](int handle) { return bench.ask(handle, "STA20").substr(29, 7); };
  EXPECT_EQ(bench.bus.countDevices(), 3);
  for (const int handle : {-1, 0, 4}) EXPECT_EQ(bench.transcript(handle, "MET"), "-1001/-1001:");
  EXPECT_EQ(bench.bus.status(), 0);
  EXPECT_EQ(bench.ask(1, "MET"), "02");
  EXPECT_EQ(bench.bus.status(), 1);
  bench.box(1).plugged = false;
  EXPECT_EQ(bench.transcript(2, "STA20"), "-1001/-1001:");
  EXPECT_EQ(serial(3), "4800003") << "the others keep theirs";
  EXPECT_EQ(bench.bus.close(), 0);
  EXPECT_EQ(bench.bus.close(), kAlreadyClosed);
  EXPECT_EQ(bench.bus.countDevices(), 2);
  bench.box(1).plugged = true;
  EXPECT_EQ(serial(2), "4800003") << "not seen before the next count";
  EXPECT_EQ(bench.bus.countDevices(), 3);
  EXPECT_EQ(serial(2), "4800002");
  bench.load("");
  EXPECT_EQ(bench.bus.countDevices(), 0);
}

// The results of block reads after a request, until one fails, and the first bytes of a refusal.
std::string blocks(Bench& bench, std::string_view request) {
  std::string seen = std::to_string(bench.bus.writeA(1, request)) + ":";
  char bytes[512];
  for (int count = 1; count > 0;) {
    count = bench.bus.readB(1, reinterpret_cast<std::byte*>(bytes), sizeof bytes);
    seen += fmt::format(" {}", count);
    if (std::string_view(bytes, 3) == "ERR" && count == 64) seen += std::string(bytes, 6);
  }
  return seen;
}

TEST(Bus, BlockReadsFailAsTold) {
  // A fault, '|', the request.
  const Row rows[] = {{"|DATDAT00001.DAT", "64: 512 512 512 512 -1006"},
                      {"|DATNOSUCH.DAT", "64: -1006"},
                      {"|HFLNOSUCH", "64: 64ERR,51 -1006"},
                      {"card = out|HFLDAT00001", "64: 64ERR,50 -1006"},
                      {"card = out|DATDAT00001.DAT", "64: -1006"},
                      {"error.RTD = 43|RTD", "64: 64ERR,43 -1006"},
                      {"error.DAT = 57|DATDAT00001.DAT", "64: -1006"},
                      {"block.DAT = 2|DATDAT00001.DAT", "64: 512 512 -1006"},
                      {"read.DAT = 0 x1|DATDAT00001.DAT", "64: 0"},
                      {"|STA20", "64: 64 -1006"}};
  for (const Row& row : rows) {
    const std::string_view line(row.fault);
    const auto bar = line.find('|');
    Bench bench(kBoxes + "[box 4800001]\n" + std::string(line.substr(0, bar)));
    EXPECT_EQ(blocks(bench, line.substr(bar + 1)), row.expected) << line;
  }
  Bench bench(kBoxes);
  ASSERT_EQ(bench.bus.writeA(1, "DATDAT00001.DAT"), 64);
  EXPECT_EQ(bench.ask(1, "MET"), "02") << "a command ends an unfinished transfer";
  std::byte block[64];
  EXPECT_EQ(bench.bus.readB(1, block, 64), kReadBFailed);
}

}  // namespace
}  // namespace vksim
