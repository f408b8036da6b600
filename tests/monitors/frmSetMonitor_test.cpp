// SPDX-License-Identifier: MIT
#include "monitors/frmSetMonitor.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "monitors/mdlMonitorSelection.h"
#include "tests/support/window_tools.h"

namespace vktest {
namespace {

TEST(frmSetMonitorTest, TicksComeFromTheRecordsAndGoIntoTheResult) {
  vk::resetMonitorRecords();
  vk::gNumMoni[31].NUM_ONOFF = vk::gBarMoni[3].BAR_ONOFF = true;
  vk::frmSetMonitor form;
  form.show();
  EXPECT_EQ(control<QLabel>(form, "lblXYCap")->text(), "X-Y monitor  ");
  EXPECT_EQ(control<QCheckBox>(form, "chkNumMoni(31)")->text(), "monitor 32");
  for (const char* name : {"chkNumMoni(31)", "chkWaveMoni(7)", "chkX_YMoni(3)", "chkCircleMoni(7)"})
    control<QCheckBox>(form, name)->click();
  control<QPushButton>(form, "cmdSet")->click();
  const auto& ticked = vk::gMonitorSelection.ticked;
  EXPECT_TRUE(vk::gMonitorSelection.accepted && !form.isVisible());
  EXPECT_TRUE(!ticked[0][31] && ticked[1][7] && ticked[2][3] && ticked[3][3] && ticked[4][7]);
  EXPECT_TRUE(vk::gNumMoni[31].NUM_ONOFF) << "the dialog changes no record";

  vk::frmSetMonitor again;
  again.show();
  vk::gMonitorSelection.accepted = true;
  QTest::keyClick(&again, Qt::Key_Escape);
  EXPECT_FALSE(vk::gMonitorSelection.accepted || again.isVisible());
}

}  // namespace
}  // namespace vktest
