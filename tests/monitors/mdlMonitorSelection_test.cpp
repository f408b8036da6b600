// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorSelection.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/fake_desktop.h"
#include "tests/support/fake_monitor.h"

namespace vktest {
namespace {

using vk::gMonitorSelection;

class MonitorSelectionTest : public ::testing::Test {
 protected:
  MonitorSelectionTest() {
    vk::resetMonitorRecords();
    gMonitorSelection = {};
    vk::gMonitorHandlers.load = [this](vk::MonitorKind kind) {
      windows.push_back(std::make_unique<FakeMonitor>(kind, vk::gMoniLoadIndex, desk.log));
      desk.log.push_back("loaded");
      desk.doEvents();
    };
  }
  ~MonitorSelectionTest() override {
    vk::gMonitorHandlers = {};
    vk::resetMonitorRecords();
  }
  /// Accepts the dialog with these as ticked, each a kind and an index.
  std::string choose(std::vector<std::pair<vk::MonitorKind, std::size_t>> ticked) {
    gMonitorSelection = {{}, true};
    for (const auto& [kind, index] : ticked)
      gMonitorSelection.ticked[static_cast<std::size_t>(kind)][index] = true;
    vk::applyMonitorSelection();
    return desk.takeLog();
  }

  static constexpr auto N = vk::MonitorKind::kNumerical;
  static constexpr auto W = vk::MonitorKind::kWave;
  static constexpr auto C = vk::MonitorKind::kCircle;
  FakeDesktop desk;
  std::vector<std::unique_ptr<FakeMonitor>> windows;
};

TEST_F(MonitorSelectionTest, OnlyDifferencesAreCarriedOut) {
  EXPECT_EQ(choose({{C, 7}, {N, 31}, {W, 0}}),
            "loaded\nnumerical 31 init\nnumerical 31 show\nloaded\nwave 0 init\nwave 0 show\n"
            "loaded\ncircle 7 init\ncircle 7 show\n");
  EXPECT_TRUE(vk::gNumMoni[31].NUM_ONOFF && vk::monitorFlags()[0][31]);
  EXPECT_FALSE(vk::monitorFlags()[0][30]);
  EXPECT_EQ(choose({{N, 0}, {W, 0}}),
            "loaded\nnumerical 0 init\nnumerical 0 show\nnumerical 31 hide\ncircle 7 hide\n");
  EXPECT_FALSE(vk::gNumMoni[31].NUM_ONOFF);
  // It stayed loaded; its trace starts anew.
  EXPECT_EQ(choose({{N, 0}, {W, 0}, {N, 31}}), "numerical 31 init\nnumerical 31 show\n");
}

TEST_F(MonitorSelectionTest, TheResultIsUsedOnceAlsoWhenTheDialogOpensAgainMeanwhile) {
  gMonitorSelection.ticked[0][1] = true;
  vk::applyMonitorSelection();
  EXPECT_EQ(desk.takeLog(), "") << "cancelled";
  desk.yields = {[] { gMonitorSelection = {}; }, [this] { desk.endProgram(); }};
  EXPECT_EQ(choose({{N, 0}, {C, 0}, {C, 1}}),
            "loaded\nnumerical 0 init\nnumerical 0 show\nloaded\nend\n");
  vk::applyMonitorSelection();
  EXPECT_EQ(desk.takeLog(), "");
}

}  // namespace
}  // namespace vktest
