// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorCycle.h"

#include <memory>
#include <utility>

#include "monitors/mdlMonitorValue.h"
#include "tests/support/fake_monitor.h"
#include "tests/support/link_fixture.h"

namespace vktest {
namespace {

using vk::MonitorKind;

class MonitorCycle : public LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    vk::resetMonitorRecords();
    vk::resetMonitorCycle();
    vk::gMonitorHandlers = {};
    for (std::size_t row = 1; row <= 3; ++row) {
      place(row, static_cast<int32_t>(row), static_cast<int32_t>(row) * 100);
    }
    answerByHandle();
  }
  void TearDown() override {
    monitors.clear();
    SetUp();
  }
  /// Channel n of handle h reads "+00h0n".
  static void answerByHandle() {
    library().answer = [](int32_t handle, const std::string&) {
      std::string reply;
      for (int channel = 1; channel <= 4; ++channel) {
        reply += "+00" + std::to_string(handle) + "0" + std::to_string(channel);
      }
      return ScriptedLibrary::Reply{padded(reply + "\r\n"), 80};
    };
  }
  FakeMonitor& on(MonitorKind kind, std::size_t index, std::vector<int32_t> serials,
                  std::vector<int32_t> channels) {
    const auto fields = vk::monitorFields(kind, index);
    fields.on = true;
    std::ranges::copy(serials, fields.serial.begin());
    std::ranges::copy(channels, fields.channel.begin());
    monitors.push_back(std::make_unique<FakeMonitor>(kind, index, log));
    return *monitors.back();
  }
  std::string takeLog() {
    std::string text;
    for (const auto& line : log) text += line + "\n";
    log.clear();
    return text;
  }

  std::vector<std::string> log;
  std::vector<std::unique_ptr<FakeMonitor>> monitors;
};

TEST_F(MonitorCycle, AsksEachBoxOnceAndHandsOutEachChannel) {
  EXPECT_FALSE(vk::monitorCycle());
  EXPECT_EQ(library().takeTranscript(), "");

  on(MonitorKind::kCircle, 7, {200}, {4});
  on(MonitorKind::kBar, 3, {300, vk::kNoSerial, 100, 555}, {1, 1, 2, 1});
  on(MonitorKind::kXY, 0, {200, 300}, {1, 9});
  on(MonitorKind::kWave, 2, {100}, {3});
  on(MonitorKind::kNumerical, 31, {300}, {1});
  on(MonitorKind::kNumerical, 5, {vk::kNoSerial}, {1});
  EXPECT_TRUE(vk::monitorCycle());
  EXPECT_EQ(library().takeTranscript(),
            "write(3,MON0)\nread(3)\nwrite(1,MON0)\nread(1)\nwrite(2,MON0)\nread(2)\n");
  EXPECT_EQ(takeLog(),
            "numerical 5 lost\nnumerical 31 reads [+00301]\nwave 2 reads [+00103]\n"
            "x-y 0 reads [+00201] []\nbar 3 reads [+00301] [*] [+00102] [*]\n"
            "circle 7 reads [+00204]\n");
  // Switched off it is left alone although its window is loaded.
  vk::gNumMoni[31].NUM_ONOFF = vk::gBarMoni[3].BAR_ONOFF = vk::gXYMoni[0].XY_ONOFF = false;
  EXPECT_TRUE(vk::monitorCycle());
  EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\nwrite(2,MON0)\nread(2)\n");
  EXPECT_EQ(takeLog(), "numerical 5 lost\nwave 2 reads [+00103]\ncircle 7 reads [+00204]\n");
}

TEST_F(MonitorCycle, FetchResults) {
  place(2, vk::kNoHandle, 200);  // as the status poll leaves a lost box
  EXPECT_EQ(vk::fetchMonitorValue(vk::kNoSerial), -1);
  EXPECT_EQ(vk::fetchMonitorValue(555), -2);
  EXPECT_EQ(vk::fetchMonitorValue(200), -1001);
  EXPECT_EQ(library().takeTranscript(), "");
  EXPECT_EQ(vk::fetchMonitorValue(100), 0);
  EXPECT_EQ(vk::readingOf(vk::gMoniText[1], 3), "+00103");
  EXPECT_EQ(vk::fetchMonitorValue(100), 0);
  EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\n");
}

struct Fault {
  const char* what;
  std::vector<ScriptedLibrary::Reply> replies;
  std::vector<int32_t> writes;
  bool lost;
  const char* counters;  ///< reconnected, sent, received, content
};

TEST_F(MonitorCycle, AFaultThatStaysEndsThePassAndReconnects) {
  const ScriptedLibrary::Reply kGood{padded("+00000+00000+00000+00000"), 80};
  const ScriptedLibrary::Reply kGarbled{padded("x0000"), 80};
  const Fault rows[] = {{"write fails once", {kGood}, {-1007}, false, "0 1 0 0"},
                        {"write fails twice", {}, {-1007, -1007}, true, "1 1 0 0"},
                        {"read fails once", {{"", 0}, kGood}, {}, false, "0 0 1 0"},
                        {"read fails twice", {{"", 0}, {"", -1005}}, {}, true, "1 0 1 0"},
                        {"garbled once", {kGarbled, kGood}, {}, false, "0 0 0 1"},
                        {"garbled twice", {kGarbled, kGarbled}, {}, true, "1 0 0 1"}};
  for (const auto& row : rows) {
    TearDown();
    int notices = 0;
    vk::gMonitorHandlers.lostLink = [&] { ++notices; };
    on(MonitorKind::kNumerical, 0, {100}, {1});
    on(MonitorKind::kWave, 0, {200}, {1});
    library().answer = {};
    library().replies.push_back(kGood);  // for box 100
    library().replies.insert(library().replies.end(), row.replies.begin(), row.replies.end());
    library().writeResults.push_back(64);
    library().writeResults.insert(library().writeResults.end(), row.writes.begin(),
                                  row.writes.end());
    EXPECT_TRUE(vk::monitorCycle());
    EXPECT_EQ(takeLog(), row.lost ? "" : "numerical 0 reads [+00000]\nwave 0 reads [+00000]\n")
        << row.what;
    EXPECT_EQ(notices, row.lost ? 1 : 0) << row.what;
    EXPECT_EQ(vk::gBoxTable[2].handle, row.lost ? vk::kLostHandle : 2) << row.what;
    EXPECT_EQ(std::to_string(vk::gCommReconnectCnt) + " " + std::to_string(vk::gCommSendErrCnt) +
                  " " + std::to_string(vk::gCommRecvErrCnt) + " " +
                  std::to_string(vk::gCommContentErrCnt),
              row.counters)
        << row.what;
    if (!row.lost) continue;
    EXPECT_EQ(vk::gMoniText[2], "*");
    // The lost box is asked no more; the others go on.
    library().takeTranscript();
    answerByHandle();
    EXPECT_TRUE(vk::monitorCycle());
    EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\n");
    EXPECT_EQ(takeLog(), "numerical 0 reads [+00101]\nwave 0 lost\n");
  }
}

TEST_F(MonitorCycle, ABoxThatTheStatusPollHasLostLosesItsMonitors) {
  on(MonitorKind::kNumerical, 0, {100}, {1});
  on(MonitorKind::kWave, 0, {200}, {1});
  on(MonitorKind::kXY, 0, {100, 200}, {1, 1});
  vk::monitorCycle();
  log.clear();
  for (const int32_t handle : {-1, -1001}) {
    vk::gBoxTable[2].handle = handle;
    library().takeTranscript();
    vk::monitorCycle();
    EXPECT_EQ(takeLog(), "numerical 0 reads [+00101]\nwave 0 lost\nx-y 0 reads [+00101] [*]\n");
    EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\n") << handle;
  }
}

TEST_F(MonitorCycle, NoNoticeOnceTheProgramEnds) {
  int notices = 0;
  vk::gMonitorHandlers.lostLink = [&] { ++notices; };
  on(MonitorKind::kNumerical, 0, {100}, {1});
  library().answer = {};
  desk.yields.push_back([this] { desk.endProgram(); });  // within the wait before the second try
  vk::monitorCycle();
  EXPECT_EQ(notices, 0);
}

TEST_F(MonitorCycle, AReconnectWithinARetryEndsThePassWithoutAReading) {
  for (const bool answers : {true, false}) {
    on(MonitorKind::kNumerical, 0, {100}, {1});
    on(MonitorKind::kWave, 0, {200}, {1});
    int notices = 0;
    vk::gMonitorHandlers.lostLink = [&] { ++notices; };
    int asked = 0;
    const auto reply = std::exchange(library().answer, {});
    library().answer = [&, reply](int32_t handle, const std::string& request) {
      // Box 200 fails first, and is gone after the reconnect.
      if (++asked == 2 || !answers) return ScriptedLibrary::Reply{"", 0};
      return reply(handle, request);
    };
    desk.clock = 0;
    desk.yields.push_back([this] {
      desk.clock = 200;  // long before the end of the wait
      vk::resetBoxTable();
      place(1, 1, 100);
      place(2, 2, 300);
      vk::resetMonitorCycle();
    });
    EXPECT_TRUE(vk::monitorCycle());
    EXPECT_EQ(desk.clock, 200);
    EXPECT_EQ(takeLog(), "") << answers;
    EXPECT_EQ(notices, 0);
    EXPECT_TRUE(vk::gBoxTable[1].handle == 1 && vk::gBoxTable[2].handle == 2);
    TearDown();
  }
}

TEST_F(MonitorCycle, TakesInEveryPassButShowsAFrameInThirtyMilliseconds) {
  auto& shown = on(MonitorKind::kNumerical, 0, {100}, {1});
  std::string frames;
  for (const int64_t clock : {0, 1, 29, 30, 31, 59, 60, 500, 510, 530}) {
    desk.clock = clock;
    const int before = shown.frames;
    vk::monitorCycle();
    if (shown.frames > before) frames += std::to_string(clock) + " ";
  }
  EXPECT_EQ(frames, "0 30 60 500 530 ");
  EXPECT_EQ(log.size(), 10U);
  // The last pass before the loop sleeps, and before a notice stands, is shown at once.
  library().answer = {};
  vk::monitorCycle();
  EXPECT_EQ(shown.frames, 6);
  vk::monitorCycle();
  EXPECT_EQ(shown.frames, 7);
}

TEST_F(MonitorCycle, OpensStoredMonitorsInOrderUntilTheProgramEnds) {
  int loads = 0;
  vk::gMonitorHandlers.load = [&](MonitorKind kind) {
    ++loads;
    monitors.push_back(std::make_unique<FakeMonitor>(kind, vk::gMoniLoadIndex, log));
    if (kind == MonitorKind::kBar) monitors.back().reset();  // closed while it was loaded
    if (kind == MonitorKind::kCircle) desk.endProgram();
  };
  vk::gWaveMoni[7].WAV_ONOFF = vk::gXYMoni[3].XY_ONOFF = vk::gNumMoni[0].NUM_ONOFF = true;
  vk::gBarMoni[1].BAR_ONOFF = true;
  vk::openStoredMonitors();
  EXPECT_EQ(takeLog(),
            "numerical 0 init\nnumerical 0 show\nwave 7 init\nwave 7 show\nx-y 3 init\n"
            "x-y 3 show\n");
  // A loaded window is kept; units reach the ones that are on.
  vk::gXYMoni[3].XY_ONOFF = false;
  vk::openMonitor(MonitorKind::kNumerical, 0);
  vk::refreshMonitorUnits();
  EXPECT_EQ(loads, 4);
  EXPECT_EQ(takeLog(), "numerical 0 init\nnumerical 0 show\nnumerical 0 unit\nwave 7 unit\n");
  vk::gCircleMoni[0].CRL_ONOFF = true;
  vk::openStoredMonitors();
  EXPECT_FALSE(takeLog().ends_with("circle 0 show\n"));
  vk::unloadMonitors();
  EXPECT_EQ(takeLog(), "numerical 0 unload\nwave 7 unload\nx-y 3 unload\ncircle 0 unload\n");
}

}  // namespace
}  // namespace vktest
