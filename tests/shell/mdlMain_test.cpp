// SPDX-License-Identifier: MIT
#include "shell/mdlMain.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "link/mdlBoxTable.h"
#include "link/mdlUSBCommand.h"
#include "monitors/mdlMonitorCycle.h"
#include "monitors/mdlMonitorRecords.h"
#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_box.h"

namespace vk {
namespace {

namespace fs = std::filesystem;

class MainRun : public testing::Test {
 protected:
  MainRun() : before_(fs::current_path()) {
    vktest::library() = {};
    gMonitorCycle = nullptr;
    desktop_.folders[SpecialFolder::kCommonAppData] = folder_.path();
    desktop_.program = folder_.path();
    setDefaults();
    vktest::library().takeTranscript();
    stages_ = {[this] { note("start form"), gStartMode = mode_, gStartOK = ok_; },
               [this] {
                 note("main window");
                 // The first yield of the run ends it, as the user's close of the window would.
                 desktop_.yields.push_back([] { shutDown(""); });
               },
               [this] { note("monitors"); }, [this] { note("upgrade form"); }};
    steps_ = {[this](bool on) { note(on ? "timer on" : "timer off"); },
              [this] { note("unload"); },
              {{}, [this](const std::string& line) { scan_ += line; }},
              stages_.openStoredMonitors,
              [this] { note("panels"); }};
  }
  ~MainRun() override {
    fs::current_path(before_);
    gMonitorCycle = nullptr;
    gRestoreDefaults = nullptr;
    vktest::library() = {};
    setDefaults();
  }
  void note(const std::string& line) { desktop_.log.push_back(line); }
  fs::path configFile() const { return folder_.path() / "NRV/VK-480Q CONTROLLER/VK480Q.cfg"; }

  const fs::path before_;
  vktest::DataFolder folder_;
  vktest::FakeDesktop desktop_;
  MainStages stages_;
  ReconnectSteps steps_;
  std::string scan_;
  int32_t mode_ = 0;
  int32_t ok_ = 1;
};

TEST_F(MainRun, RoadsByStartMode) {
  const std::tuple<int32_t, int32_t, int32_t, const char*, const char*> rows[] = {
      {0, 1, 1, "start form\nmain window\nmonitors\nend\n", "timeout(7)\nstatus\nclose\n"},
      {1, 1, 1, "start form\nupgrade form\nend\n", "timeout(7)\n"},
      {2, 1, 1, "start form\nend\n", "timeout(7)\n"},
      {3, 1, 1, "start form\n", "timeout(7)\n"},
      {1, 0, 1, "start form\nend\n", "timeout(7)\nstatus\nclose\n"},
      {3, 0, 0, "start form\nend\n", "timeout(7)\nstatus\n"}};
  for (const auto& [mode, ok, open, stages, transcript] : rows) {
    desktop_.ended = false;
    vktest::library() = {};
    vktest::library().open = open;
    mode_ = mode;
    ok_ = ok;
    Main(stages_);
    EXPECT_EQ(desktop_.takeLog(), stages) << mode << ok;
    EXPECT_EQ(vktest::library().takeTranscript(), transcript) << mode << ok;
  }
}

TEST_F(MainRun, PreparesAndReadsTheConfigurationBeforeTheFirstForm) {
  gStatusMode = 1;
  writeConfig();
  gResOffset = gStatusMode = 0;
  gCommReconnectCnt = gCommSendErrCnt = gCommRecvErrCnt = gCommContentErrCnt = 5;
  gStartOK = 1;
  stages_.showStart = [&] {
    EXPECT_TRUE(gResOffset == 5000 && gStatusMode == 1 && gStartOK == 0);
    EXPECT_EQ(gCommReconnectCnt + gCommSendErrCnt + gCommRecvErrCnt + gCommContentErrCnt, 0);
    EXPECT_TRUE(fs::equivalent(fs::current_path(), folder_.path()));
    // A program that ends inside the form goes no further.
    gStartOK = 1;
    desktop_.endProgram();
  };
  Main(stages_);
  EXPECT_EQ(desktop_.takeLog(), "end\n");
  // The box that refuses an upgrade restores defaults and file.
  gStatusMode = 0;
  gBoxTable[1].handle = 1;
  gRestoreDefaults();
  EXPECT_EQ(gStatusMode, 1);
  EXPECT_EQ(gBoxTable[1].handle, kNoHandle);
}

TEST_F(MainRun, DecimalCommaEndsBeforeAnyFormAndFile) {
  desktop_.decimal = ",";
  Main(stages_);
  const std::string log = desktop_.takeLog();
  EXPECT_TRUE(log.starts_with("box[VK-480Q CONTROLLER][From the \"Regional")) << log;
  EXPECT_EQ(log.find("\nstart form"), std::string::npos);
  EXPECT_TRUE(fs::is_empty(folder_.path()));
  EXPECT_FALSE(desktop_.ended);
}

TEST_F(MainRun, LoopSleepsWhileNoMonitorIsOn) {
  int cycles = 0;
  std::string rounds;
  gMonitorCycle = [&] { return ++cycles == 2 || cycles == 3; };
  for (int round = 1; round <= 5; ++round) {
    desktop_.yields.push_back([&, round] {
      rounds += std::to_string(cycles) + "@" + std::to_string(desktop_.clock) + " ";
      gMonitorRun = round != 4;
      desktop_.ended = round == 5;
    });
  }
  desktop_.clock = 0;
  monitorLoop();
  // Each wait moves the clock on by one: rounds 2 and 3 only yielded; the flag was down in 5.
  EXPECT_EQ(rounds, "1@1 2@1 3@1 4@2 4@3 ");
  monitorLoop();
  desktop_.ended = false;
  const int yields = desktop_.yieldCount;
  gMonitorCycle = [&] { return ++cycles, desktop_.ended = true; };
  monitorLoop();
  EXPECT_EQ(cycles, 5);
  EXPECT_EQ(desktop_.yieldCount, yields);
}

TEST_F(MainRun, ShutDownKeepsTheSettingsAndDropsTheTemporaryFiles) {
  vktest::library().open = 1;
  const auto temporary = folder_.put("NRV/VK-480Q CONTROLLER/tmp/A.dat", "1");
  const auto listed = folder_.put("B.dat", "1");
  gStatusContents = 2;
  const std::string text = configText() + "\r\n";
  shutDown(listed.string() + "\r\n");
  EXPECT_EQ(vktest::DataFolder::bytesOf(configFile()), text);
  EXPECT_FALSE(fs::exists(temporary) || fs::exists(listed));
  EXPECT_EQ(vktest::library().takeTranscript(), "status\nclose\n");
  EXPECT_EQ(desktop_.takeLog(), "end\n");
}

TEST_F(MainRun, ReconnectKeepsTheMonitorsAndFindsTheBoxesAnew) {
  vktest::plugIn({{1, vktest::ScriptedBox{}}});
  gBoxTable[1].handle = kLostHandle;
  gBoxTable[2].serial = 6;
  gNumMoni[3].NUM_ONOFF = true;
  gCommSendErrCnt = 9;
  desktop_.clock = 0;
  steps_.unloadMonitors = [this] {
    note("unload");
    gNumMoni[3].NUM_TOP = 315;  // a window stores its place as it goes
  };
  autoReconnect(steps_);
  EXPECT_EQ(desktop_.takeLog(), "timer off\nunload\nmonitors\npanels\ntimer on\n");
  EXPECT_GE(desktop_.clock, 500);
  EXPECT_TRUE(gNumMoni[3].NUM_ONOFF);
  EXPECT_EQ(gNumMoni[3].NUM_TOP, 315);
  EXPECT_TRUE(gBoxTable[1].handle == 1 && gBoxTable[2].serial == kNoSerial);
  EXPECT_EQ(gCommSendErrCnt, 9);
  EXPECT_NE(scan_.find("Connected = 1Unit\r\n"), std::string::npos) << scan_;
  gCommSendErrCnt = 0;
}

TEST_F(MainRun, ReconnectRefusesABoxInUpgradeMode) {
  vktest::ScriptedBox upgrade;
  upgrade.upgrade = true;
  vktest::plugIn({{1, upgrade}});
  gRestoreDefaults = [this] { note("defaults"); };
  autoReconnect(steps_);
  EXPECT_EQ(desktop_.takeLog(),
            "timer off\nunload\n"
            "box[Connection error][VK-480Q in upgrade mode is connected. Stop the upgrade mode and "
            "reconnect.][ok][none]\n"
            "defaults\nmonitors\npanels\ntimer on\n");
}

TEST_F(MainRun, ReconnectRunsOnceAndTouchesNoWindowOnceTheProgramEnds) {
  vktest::library().devices = 0;
  desktop_.yields.push_back([this] { autoReconnect(steps_); });
  autoReconnect(steps_);
  EXPECT_EQ(desktop_.takeLog(), "timer off\nunload\nmonitors\npanels\ntimer on\n");
  desktop_.yields.push_back([this] { shutDown(""); });
  autoReconnect(steps_);
  EXPECT_EQ(desktop_.takeLog(), "timer off\nunload\nmonitors\nend\n");
}

TEST_F(MainRun, QuestionBeforeAReconnectByHand) {
  for (const auto answer : {BoxAnswer::kOk, BoxAnswer::kCancel, BoxAnswer::kClosed}) {
    desktop_.answers = {answer};
    EXPECT_EQ(askReconnect(), answer == BoxAnswer::kOk);
    EXPECT_EQ(desktop_.takeLog(),
              "box[Re-connect][Reconnected and connected VK-480Q is recognized.][ok-cancel]"
              "[information]\n");
  }
}

}  // namespace
}  // namespace vk
