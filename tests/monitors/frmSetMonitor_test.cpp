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
  vk::gNumMoni[31].NUM_ONOFF = true;
  vk::gBarMoni[3].BAR_ONOFF = true;
  vk::frmSetMonitor form;
  form.show();
  EXPECT_EQ(control<QLabel>(form, "lblXYCap")->text(), "X-Y monitor  ");
  EXPECT_EQ(control<QCheckBox>(form, "chkNumMoni(31)")->text(), "monitor 32");
  EXPECT_TRUE(control<QCheckBox>(form, "chkNumMoni(31)")->isChecked());
  EXPECT_FALSE(control<QCheckBox>(form, "chkWaveMoni(7)")->isChecked());
  for (const char* name : {"chkNumMoni(31)", "chkWaveMoni(7)", "chkX_YMoni(3)", "chkCircleMoni(7)"})
    control<QCheckBox>(form, name)->click();
  control<QPushButton>(form, "cmdSet")->click();
  EXPECT_TRUE(vk::gMonitorSelection.accepted && !form.isVisible());
  const auto& ticked = vk::gMonitorSelection.ticked;
  EXPECT_TRUE(!ticked[0][31] && ticked[1][7] && ticked[2][3] && ticked[3][3] && ticked[4][7]);
  EXPECT_TRUE(vk::gNumMoni[31].NUM_ONOFF) << "the dialog changes no record";
}

TEST(frmSetMonitorTest, EscapeIsACancel) {
  vk::gMonitorSelection.accepted = true;
  vk::frmSetMonitor form;
  form.show();
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(vk::gMonitorSelection.accepted || form.isVisible());
}

}  // namespace
}  // namespace vktest
