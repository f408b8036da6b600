// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorSelection.h"

#include <gtest/gtest.h>

#include "base/mdlText.h"
#include "monitors/mdlMonitorCycle.h"
#include "tests/support/fake_desktop.h"

namespace vk {
namespace {

class LoggingWindow : public MonitorWindow {
 public:
  LoggingWindow(std::string name, std::string& log) : name_(std::move(name)), log_(log) {}
  void setInitMoniNum() override { note("init"); }
  void Monitoring(std::span<const std::string_view>) override {}
  void MoniDisConnect() override {}
  void setUnitLabel() override {}
  void showReadings() override {}
  void showWindow() override { note("show"); }
  void hideWindow() override { note("hide"); }
  void unload() override {}

 private:
  void note(const char* what) { log_ += name_ + " " + what + ","; }
  std::string name_;
  std::string& log_;
};

class MonitorSelectionTest : public ::testing::Test {
 protected:
  MonitorSelectionTest() {
    clean();
    gMonitorHandlers.load = [this](MonitorKind kind) {
      const auto at = static_cast<std::size_t>(kind);
      const std::string name = std::string(1, "NWXBC"[at]) + textOf(int32_t(gMoniLoadIndex));
      log += name + " load,";
      windows.push_back(std::make_unique<LoggingWindow>(name, log));
      setMonitorWindow(kind, gMoniLoadIndex, windows.back().get());
      desk.doEvents();
    };
  }
  ~MonitorSelectionTest() override { clean(); }
  static void clean() {
    gMonitorHandlers = {};
    gMonitorSelection = {};
    resetMonitorRecords();
    for (const auto kind : kMonitorKinds) {
      for (std::size_t i = 0; i < monitorCount(kind); ++i) setMonitorWindow(kind, i, nullptr);
    }
  }
  /// Accepts the dialog with these as ticked, each a kind and an index.
  std::string choose(std::vector<std::pair<MonitorKind, std::size_t>> ticked) {
    gMonitorSelection = {{}, true};
    for (const auto& [kind, index] : ticked)
      gMonitorSelection.ticked[static_cast<std::size_t>(kind)][index] = true;
    applyMonitorSelection();
    return std::exchange(log, {});
  }

  static constexpr auto N = MonitorKind::kNumerical;
  static constexpr auto W = MonitorKind::kWave;
  static constexpr auto B = MonitorKind::kBar;
  static constexpr auto C = MonitorKind::kCircle;
  vktest::FakeDesktop desk;
  std::string log;
  std::vector<std::unique_ptr<LoggingWindow>> windows;
};

TEST_F(MonitorSelectionTest, OnlyDifferencesAreCarriedOut) {
  EXPECT_EQ(choose({{C, 7}, {B, 3}, {N, 31}, {W, 0}}),
            "N31 load,N31 init,N31 show,W0 load,W0 init,W0 show,B3 load,B3 init,B3 show,"
            "C7 load,C7 init,C7 show,");
  EXPECT_TRUE(gNumMoni[31].NUM_ONOFF && monitorFlags()[0][31] && !monitorFlags()[0][30]);
  EXPECT_EQ(choose({{N, 0}, {W, 0}, {C, 7}}), "N0 load,N0 init,N0 show,N31 hide,B3 hide,");
  EXPECT_FALSE(gNumMoni[31].NUM_ONOFF);
  // It stayed loaded; its trace starts anew.
  EXPECT_EQ(choose({{N, 0}, {W, 0}, {C, 7}, {N, 31}}), "N31 init,N31 show,");
}

TEST_F(MonitorSelectionTest, ACancelAndAnEndOfTheProgramOpenNothing) {
  gMonitorSelection.ticked[0][0] = true;
  applyMonitorSelection();
  EXPECT_EQ(log, "");
  desk.yields.push_back([this] { desk.endProgram(); });
  EXPECT_EQ(choose({{N, 0}, {W, 0}}), "N0 load,");
}

TEST_F(MonitorSelectionTest, TheResultIsUsedOnceAlsoWhenTheDialogOpensAgainMeanwhile) {
  desk.yields.push_back([] { gMonitorSelection = {}; });
  EXPECT_EQ(choose({{N, 0}, {C, 0}}), "N0 load,N0 init,N0 show,C0 load,C0 init,C0 show,");
  gNumMoni[0].NUM_ONOFF = false;
  applyMonitorSelection();
  EXPECT_EQ(log, "");
}

}  // namespace
}  // namespace vk
