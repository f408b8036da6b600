// SPDX-License-Identifier: MIT
// Simulated boxes on the bus behind the real windows of start form and main window.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "desktop/qtText.h"
#include "instrument/simulator/library.h"
#include "link/mdlConnection.h"
#include "recorder/mdlBoxTable.h"
#include "shell/mdlConfig.h"
#include "shell/mdlMain.h"
#include "tests/instrument/simulator/bench.h"
#include "tests/support/window_desktop.h"
#include "tests/support/window_tools.h"

namespace vktest {

inline constexpr const char* kThreeBoxes =
    "[box 4810021]\n"
    "model = VK-480Qe\n"
    "role = master\n"
    "signal1 = flat 0\n"
    "recording = 1 005U 32769\n"
    "[box 4800137]\n"
    "model = VK-480Q\n"
    "[box 2400052]\n"
    "model = VK-240Q\n"
    "card = out\n";

class BoxWindowTest : public ::testing::Test {
 protected:
  BoxWindowTest() : bench("") {
    vksim::attachBus(&bench.bus);
    vk::gRestoreDefaults = [] {
      vk::setDefaults();
      vk::readConfig();
    };
    vk::gRestoreDefaults();
    vk::gStartOK = 0;
  }
  ~BoxWindowTest() override {
    vksim::attachBus(nullptr);
    vk::resetBoxTable();
  }

  void connect(const char* scenario) {
    bench.load(scenario);
    vk::connectBoxes(true, {});
  }

  WindowDesktop desk;
  vksim::Bench bench;
};

}  // namespace vktest
