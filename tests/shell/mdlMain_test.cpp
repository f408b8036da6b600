// SPDX-License-Identifier: MIT
#include "shell/mdlMain.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <vector>

#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "link/mdlUSBCommand.h"
#include "monitors/mdlMonitorRecords.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/fake_monitor.h"
#include "tests/support/scripted_box.h"

namespace vk {
namespace {

namespace fs = std::filesystem;

class MainRun : public testing::Test {
 protected:
  MainRun() : before_(fs::current_path()) {
    vktest::library() = {};
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
               [this] { note("upgrade form"); }};
    gMonitorHandlers.load = [this](MonitorKind kind) {
      monitors_.push_back(
          std::make_unique<vktest::FakeMonitor>(kind, gMoniLoadIndex, desktop_.log));
    };
  }
  ~MainRun() override {
    fs::current_path(before_);
    gRestoreDefaults = nullptr;
    gMonitorHandlers = {};
    monitors_.clear();
    vktest::library() = {};
    setDefaults();
  }
  void note(const std::string& line) { desktop_.log.push_back(line); }

  const fs::path before_;
  vktest::DataFolder folder_;
  vktest::FakeDesktop desktop_;
  MainStages stages_;
  std::vector<std::unique_ptr<vktest::FakeMonitor>> monitors_;
  std::string scan_;
  const LogBox log_ = [this](const std::string& line) { scan_ += line; };
  int32_t mode_ = 0;
  int32_t ok_ = 1;
};

TEST_F(MainRun, RoadsByStartMode) {
  const std::tuple<int32_t, int32_t, int32_t, const char*, const char*> rows[] = {
      {0, 1, 1, "start form\nmain window\nend\n", "timeout(7)\nstatus\nclose\n"},
      {1, 1, 1, "start form\nupgrade form\nend\n", "timeout(7)\n"},
      {2, 1, 1, "start form\nend\n", "timeout(7)\n"},
      {3, 1, 1, "start form\n", "timeout(7)\n"},
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

TEST_F(MainRun, OpensTheStoredMonitorsBehindTheMainWindow) {
  gNumMoni[31].NUM_ONOFF = gCircleMoni[0].CRL_ONOFF = true;
  writeConfig();
  Main(stages_);
  EXPECT_EQ(desktop_.takeLog(),
            "start form\nmain window\nnumerical 31 init\nnumerical 31 show\ncircle 0 init\n"
            "circle 0 show\nend\n");
}

TEST_F(MainRun, LoopSleepsAfterAPassWithoutABoxToAsk) {
  vktest::plugIn({{1, vktest::ScriptedBox{}}});
  gBoxTable[1].handle = 1;
  gBoxTable[1].serial = 1;
  gNumMoni[0].NUM_ONOFF = true;
  gNumMoni[0].NUM_SER = 1;
  std::string rounds;
  const auto round = [&](std::function<void()> action) {
    desktop_.yields.push_back([&, action] {
      rounds += std::to_string(vktest::library().transcript.size()) + "@" +
                std::to_string(desktop_.clock) + " ";
      action();
    });
  };
  round([] {});
  round([] { gBoxTable[1].handle = kLostHandle; });
  round([] { gBoxTable[1].handle = 1; });
  round([] { gMonitorRun = false; });
  round([] { gMonitorRun = true, gNumMoni[0].NUM_ONOFF = false; });
  round([this] { desktop_.ended = true; });
  desktop_.clock = 0;
  vktest::library().answer = [](int32_t, const std::string&) {
    return vktest::ScriptedLibrary::Reply{"+00001+00002+00003+00004\r\n", 80};
  };
  monitorLoop();
  // Each wait moves the clock on by one; a pass is a write and a read.
  EXPECT_EQ(rounds, "2@0 4@0 4@1 6@1 6@2 6@3 ");
  monitorLoop();
  EXPECT_TRUE(desktop_.yields.empty());
}

TEST_F(MainRun, ReconnectKeepsTheMonitorsAndFindsTheBoxesAnew) {
  vktest::plugIn({{1, vktest::ScriptedBox{}}});
  gBoxTable[1].handle = kLostHandle;
  gBoxTable[2].serial = 6;
  gNumMoni[3].NUM_ONOFF = true;
  gCommSendErrCnt = 9;
  desktop_.clock = 0;
  openMonitor(MonitorKind::kNumerical, 3);
  openMonitor(MonitorKind::kCircle, 7);  // hidden since: goes as well, and stays off
  desktop_.takeLog();
  monitors_[0]->onUnload = [] { gNumMoni[3].NUM_TOP = 315; };  // a window stores its place
  EXPECT_TRUE(autoReconnect(log_));
  EXPECT_EQ(desktop_.takeLog(),
            "numerical 3 unload\ncircle 7 unload\nnumerical 3 init\nnumerical 3 show\n");
  EXPECT_GE(desktop_.clock, 500);
  EXPECT_TRUE(gNumMoni[3].NUM_ONOFF);
  EXPECT_EQ(gNumMoni[3].NUM_TOP, 315);
  EXPECT_TRUE(gBoxTable[1].handle == 1 && gBoxTable[2].serial == kNoSerial);
  EXPECT_EQ(gCommSendErrCnt, 9);
  EXPECT_NE(scan_.find("Connected = 1Unit\r\n"), std::string::npos) << scan_;
  gCommSendErrCnt = 0;
}

// With a box that is refused, after which the file is read once more; and with a file that cannot
// be written.
TEST_F(MainRun, ReconnectKeepsAllSettings) {
  gRestoreDefaults = [this] {
    note("defaults");
    setDefaults();
    readConfig();
  };
  vktest::ScriptedBox upgrade;
  upgrade.upgrade = true;
  for (const bool writable : {true, false}) {
    for (const bool refused : {false, true}) {
      SCOPED_TRACE(testing::Message() << writable << refused);
      const auto file = folder_.path() / "NRV/VK-480Q CONTROLLER/VK480Q.cfg";
      fs::remove_all(file);
      if (!writable) fs::create_directories(file);
      setDefaults();
      vktest::library() = {};
      if (refused) vktest::plugIn({{1, upgrade}});
      gNumMoni[3].NUM_TOP = gWaveMoni[7].WAV_LEFT = gXYMoni[1].XY_POINT = 315;
      gBarMoni[2].BAR_CAPTION = gCircleMoni[0].CRL_CAPTION = "wing";
      gShowShortcut = gShowStatus = false;
      gStatusMode = 1;
      gMainBox = gStatusContents = 3;
      gDefaultFolder = "/data/runs";
      const std::string before = configText();
      EXPECT_TRUE(autoReconnect(log_));
      EXPECT_EQ(configText(), before);
      EXPECT_EQ(gBoxTable[1].handle, kNoHandle);
      EXPECT_EQ(desktop_.takeLog(),
                refused ? "box[Connection error][VK-480Q in upgrade mode is connected. Stop the "
                          "upgrade mode and reconnect.][ok][none]\ndefaults\n"
                        : "");
    }
  }
}

TEST_F(MainRun, ReconnectRunsOnceAndTouchesNoWindowOnceTheProgramEnds) {
  vktest::library().devices = 0;
  desktop_.yields.push_back([this] { EXPECT_FALSE(autoReconnect(log_) || askReconnect()); });
  EXPECT_TRUE(autoReconnect(log_));
  EXPECT_EQ(desktop_.takeLog(), "");
  desktop_.yields.push_back([this] { shutDown(""); });
  EXPECT_FALSE(autoReconnect(log_));
  EXPECT_EQ(desktop_.takeLog(), "end\n");
}

}  // namespace
}  // namespace vk
