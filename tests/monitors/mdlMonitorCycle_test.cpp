// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorCycle.h"

#include <fmt/format.h>

#include <memory>

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
    vk::gMonitorHandlers.lostLink = [this] { ++notices; };
    notices = 0;
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
    monitors.push_back(std::make_unique<FakeMonitor>(kind, index, desk.log));
    return *monitors.back();
  }

  int notices = 0;
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
  EXPECT_EQ(desk.takeLog(),
            "numerical 5 lost\nnumerical 31 reads [+00301]\nwave 2 reads [+00103]\n"
            "x-y 0 reads [+00201] []\nbar 3 reads [+00301] [*] [+00102] [*]\n"
            "circle 7 reads [+00204]\n");
  // Switched off it is left alone although its window is loaded.
  vk::gNumMoni[31].NUM_ONOFF = vk::gBarMoni[3].BAR_ONOFF = vk::gXYMoni[0].XY_ONOFF = false;
  EXPECT_TRUE(vk::monitorCycle());
  EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\nwrite(2,MON0)\nread(2)\n");
  EXPECT_EQ(desk.takeLog(), "numerical 5 lost\nwave 2 reads [+00103]\ncircle 7 reads [+00204]\n");
}

TEST_F(MonitorCycle, FetchResults) {
  place(2, vk::kNoHandle, 200);  // as the status poll leaves a lost box
  place(3, vk::kLostHandle, 300);
  EXPECT_EQ(vk::fetchMonitorValue(vk::kNoSerial), vk::kFetchNoSerial);
  EXPECT_EQ(vk::fetchMonitorValue(555), vk::kFetchNoSlot);
  for (const int32_t lost : {200, 300}) EXPECT_EQ(vk::fetchMonitorValue(lost), vk::kFetchLost);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(vk::fetchMonitorValue(100), vk::kUsbOk);
  EXPECT_EQ(vk::readingOf(vk::gMoniText[1], 3), "+00103");
  EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\n");
}

TEST_F(MonitorCycle, AFaultThatStaysEndsThePassAndReconnects) {
  on(MonitorKind::kNumerical, 0, {100}, {1});
  on(MonitorKind::kWave, 0, {200}, {1});
  const auto pass = [this](std::vector<int32_t> writes) {
    library().writeResults.assign(writes.begin(), writes.end());
    EXPECT_TRUE(vk::monitorCycle());
    return desk.takeLog() + fmt::format("{} notices, {} reconnects, {} not sent, handle {}",
                                        notices, vk::gCommReconnectCnt, vk::gCommSendErrCnt,
                                        vk::gBoxTable[2].handle);
  };
  EXPECT_EQ(pass({64, -1007}),
            "numerical 0 reads [+00101]\nwave 0 reads [+00201]\n"
            "0 notices, 0 reconnects, 1 not sent, handle 2");
  EXPECT_EQ(pass({64, -1007, -1007}), "1 notices, 1 reconnects, 2 not sent, handle -1001");
  EXPECT_EQ(vk::gMoniText[2], "*");
}

TEST_F(MonitorCycle, ALostBoxIsAskedNoMoreAndLosesItsMonitors) {
  on(MonitorKind::kNumerical, 0, {100}, {1});
  on(MonitorKind::kWave, 0, {200}, {1});
  on(MonitorKind::kXY, 0, {100, 200}, {1, 1});
  vk::monitorCycle();
  desk.log.clear();
  for (const int32_t handle : {vk::kNoHandle, vk::kLostHandle}) {
    vk::gBoxTable[2].handle = handle;
    library().takeTranscript();
    EXPECT_TRUE(vk::monitorCycle());
    EXPECT_EQ(desk.takeLog(),
              "numerical 0 reads [+00101]\nwave 0 lost\nx-y 0 reads [+00101] [*]\n");
    EXPECT_EQ(library().takeTranscript(), "write(1,MON0)\nread(1)\n") << handle;
  }
  library().answer = {};
  desk.yields.push_back([this] { desk.endProgram(); });  // within the wait before the second try
  vk::monitorCycle();
  EXPECT_EQ(notices, 0) << "no notice once the program ends";
}

TEST_F(MonitorCycle, AReconnectWithinARetryEndsThePassWithoutAReading) {
  for (const bool answers : {true, false}) {
    on(MonitorKind::kNumerical, 0, {100}, {1});
    on(MonitorKind::kWave, 0, {200}, {1});
    int asked = 0;
    library().answer = [&, reply = library().answer](int32_t handle, const std::string& request) {
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
    EXPECT_EQ(desk.takeLog(), "") << answers;
    EXPECT_TRUE(desk.clock == 200 && notices == 0);
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
  EXPECT_EQ(desk.log.size(), 10U);
  // The last pass before the loop sleeps, and before a notice stands, is shown at once.
  library().answer = {};
  vk::monitorCycle();
  EXPECT_EQ(shown.frames, 6);
  vk::monitorCycle();
  EXPECT_EQ(shown.frames, 7);
}

TEST_F(MonitorCycle, OpensStoredMonitorsInOrderUntilTheProgramEnds) {
  vk::gMonitorHandlers.load = [&](MonitorKind kind) {
    desk.log.push_back("load");
    monitors.push_back(std::make_unique<FakeMonitor>(kind, vk::gMoniLoadIndex, desk.log));
    if (kind == MonitorKind::kBar) monitors.back().reset();  // closed while it was loaded
    if (kind == MonitorKind::kCircle) desk.endProgram();
  };
  vk::gWaveMoni[7].WAV_ONOFF = vk::gXYMoni[3].XY_ONOFF = vk::gNumMoni[0].NUM_ONOFF = true;
  vk::gBarMoni[1].BAR_ONOFF = true;
  vk::openStoredMonitors();
  EXPECT_EQ(desk.takeLog(),
            "load\nnumerical 0 init\nnumerical 0 show\nload\nwave 7 init\nwave 7 show\nload\n"
            "x-y 3 init\nx-y 3 show\nload\n");
  // A loaded window is kept; units reach the ones that are on.
  vk::gXYMoni[3].XY_ONOFF = false;
  vk::openMonitor(MonitorKind::kNumerical, 0);
  vk::refreshMonitorUnits();
  EXPECT_EQ(desk.takeLog(), "numerical 0 init\nnumerical 0 show\nnumerical 0 unit\nwave 7 unit\n");
  vk::gCircleMoni[0].CRL_ONOFF = true;
  vk::openStoredMonitors();
  EXPECT_FALSE(desk.takeLog().ends_with("circle 0 show\n"));
  vk::unloadMonitors();
  EXPECT_EQ(desk.takeLog(), "numerical 0 unload\nwave 7 unload\nx-y 3 unload\ncircle 0 unload\n");
}

}  // namespace
}  // namespace vktest
