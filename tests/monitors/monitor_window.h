// SPDX-License-Identifier: MIT
// One monitor window in a child area, without a link: readings are handed in by the test.
#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "monitors/frmMonitor.h"
#include "monitors/frmMonitorForms.h"
#include "monitors/mdlMonitorCycle.h"
#include "monitors/mdlMonitorRecords.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/window_desktop.h"
#include "tests/support/window_tools.h"

namespace vktest {

class MonitorWindowTest : public ::testing::Test {
 protected:
  static constexpr int32_t kSerial = 4810021;

  MonitorWindowTest() {
    vk::resetBoxTable();
    vk::resetMonitorRecords();
    vk::resetMonitorCycle();
    vk::gBoxTable[1].handle = 1;
    vk::gBoxTable[1].serial = kSerial;
    vk::gMonitorHandlers.load = [this](vk::MonitorKind kind) {
      vk::monitorForm(kind).window()->enter(area);
    };
    area.resize(900, 700);
    area.show();
  }
  ~MonitorWindowTest() override {
    vk::unloadMonitors();
    vk::gMonitorHandlers = {};
    vk::resetBoxTable();
    vk::resetMonitorRecords();
  }

  /// Opens the window and does its first layout, as the resize timer would.
  vk::frmMonitor& open(vk::MonitorKind kind, std::size_t index = 0) {
    vk::monitorFields(kind, index).on = true;
    vk::openMonitor(kind, index);
    auto* form = dynamic_cast<vk::frmMonitor*>(vk::monitorWindow(kind, index));
    EXPECT_NE(form, nullptr);
    settle(*form);
    return *form;
  }
  static std::string text(QWidget& form, const char* name) {
    return control<QLabel>(form, name)->text().toStdString();
  }
  static std::string texts(QWidget& form, std::initializer_list<const char*> names) {
    std::string all;
    for (const char* name : names) all += text(form, name) + "|";
    return all;
  }
  /// Lets the resize timer see that the size has settled.
  void settle(vk::frmMonitor& form) {
    desk.skipped += 201;
    Q_EMIT control<QTimer>(form, "tmrResize")->timeout({});
  }
  static void feed(vk::frmMonitor& form, std::vector<std::string_view> readings) {
    form.Monitoring(readings);
    form.showReadings();
  }

  WindowDesktop desk;
  QMdiArea area;
};

}  // namespace vktest
