// SPDX-License-Identifier: MIT
#include "monitors/frmMonitorSetting.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "monitors/mdlMonitorCycle.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/fake_monitor.h"
#include "tests/support/window_desktop.h"
#include "tests/support/window_tools.h"

namespace vktest {
namespace {

using vk::MonitorKind;

class frmMonitorSettingTest : public ::testing::Test {
 protected:
  frmMonitorSettingTest() {
    vk::resetMonitorRecords();
    vk::resetBoxTable();
    vk::gBoxTable[2].serial = 4810021;
    main.show();
  }
  ~frmMonitorSettingTest() override {
    vk::resetMonitorRecords();
    vk::resetBoxTable();
  }

  QDialog& open(MonitorKind kind, std::size_t index = 1) {
    desk.doEvents();  // until the one before is gone
    vk::openMonitorSetting(kind, index, &main);
    desk.doEvents();
    auto* form = main.findChild<QDialog*>();
    EXPECT_TRUE(form && form->isVisible() && !form->isModal());
    return *form;
  }
  /// "name=text|name=text" into lists and fields; check boxes and buttons are clicked.
  static void enter(QDialog& form, const char* entries) {
    for (const QString& entry : QString::fromUtf8(entries).split('|')) {
      const QString text = entry.section('=', 1);
      auto* found = control<QWidget>(form, entry.section('=', 0, 0).toLatin1());
      if (auto* list = qobject_cast<QComboBox*>(found)) list->setCurrentText(text);
      if (auto* edit = qobject_cast<QLineEdit*>(found)) edit->setText(text);
      if (auto* button = qobject_cast<QAbstractButton*>(found)) button->click();
    }
  }
  void set(QDialog& form) {
    control<QPushButton>(form, "cmdSet")->click();
    EXPECT_FALSE(form.isVisible());
    desk.doEvents();
  }
  static constexpr const char* kInvalid = "box[Input Error][Invalid]\n";

  WindowDesktop desk;
  QWidget main;
};

TEST_F(frmMonitorSettingTest, EntriesGoIntoTheRecordAndTheMonitorTakesThem) {
  std::vector<std::string> calls;
  FakeMonitor window(MonitorKind::kNumerical, 1, calls);
  auto& form = open(MonitorKind::kNumerical);
  EXPECT_EQ(control<QComboBox>(form, "cmbSerNum")->itemText(0), "4810021");
  desk.colours = {1, 2, 3, 4};
  enter(form,
        "cmbSerNum=77|cmbChNum=Ch 3|cmbMoniAve=100|cmbPoint=0.00|txtCaption=Bridge left|"
        "chkCaution|txtUp=1.5|txtDown=-1e3|cmdColor(0)|cmdColor(1)|cmdColor(2)|cmdColor(3)");
  set(form);
  const auto& record = vk::gNumMoni[1];
  EXPECT_EQ(fmt::format("{} {} {} {} {}", record.NUM_CAPTION, record.NUM_SER, record.NUM_CH,
                        record.NUM_SPEED, record.NUM_POINT),
            "Bridge left 77 3 99 2");
  EXPECT_EQ(fmt::format("{} {} {} {} {} {} {}", record.NUM_BACK, record.NUM_FORE, record.NUM_C_BACK,
                        record.NUM_C_FORE, record.NUM_CVAL_ONOFF, record.NUM_CVAL_UP,
                        record.NUM_CVAL_DOWN),
            "1 2 3 4 true 1.5 -1000");
  EXPECT_EQ(calls, std::vector<std::string>{"numerical 1 init"});
  EXPECT_EQ(desk.takeLog(),
            "colour[3092271]\ncolour[16777215]\ncolour[4210752]\ncolour[16777215]\n");
}

TEST_F(frmMonitorSettingTest, EveryKindWritesToItsOwnFields) {
  enter(open(MonitorKind::kWave), "cmbYScale=0.25|cmbXScale=60sec|cmdSet");
  EXPECT_TRUE(vk::gWaveMoni[1].WAV_FULL == 0.25F && vk::gWaveMoni[1].WAV_SPEED == 11);
  desk.colours = {1, 2, 3, 4};
  enter(open(MonitorKind::kXY),
        "cmbSerNum(0)=4|cmbSerNum(1)=5|cmbChNum(1)=Ch 4|cmbScale(1)=-2|cmdColor(5)|cmdColor(6)|"
        "cmdSet");
  const auto& xy = vk::gXYMoni[1];
  EXPECT_TRUE(xy.XY_SER[0] == 4 && xy.XY_SER[1] == 5 && xy.XY_CH[1] == 4 && xy.XY_FULL[1] == -2 &&
              xy.XY_GRID == 1 && xy.XY_POINT == 2);
  enter(open(MonitorKind::kBar), "cmbSerNum(3)=9|cmbYScale(2)=20|cmdColor(1)|cmdColor(6)|cmdSet");
  const auto& bar = vk::gBarMoni[1];
  EXPECT_TRUE(bar.BAR_SER[3] == 9 && bar.BAR_FULL[2] == 20 && bar.BAR_GND == 3 &&
              bar.BAR_FORE[3] == 4);
  desk.takeLog();
  auto& circle = open(MonitorKind::kCircle);
  enter(circle, "cmbScale(0)=-50|cmbScale(1)=-50|cmdSet");
  EXPECT_TRUE(circle.isVisible() && desk.takeLog().starts_with("box[入力ｴﾗｰ][+ｽ"));
  enter(circle, "cmbScale(1)=20|cmdSet");
  EXPECT_TRUE(vk::gCircleMoni[1].CRL_FULL == -50 && vk::gCircleMoni[1].CRL_OFFSET == 20);
}

TEST_F(frmMonitorSettingTest, WhatNobodyTouchesStaysAsItIs) {
  // More digits than a text shows; the abnormal fields of four kinds cannot be reached at all.
  constexpr float kLong = 123456.789F;
  vk::gWaveMoni[1].WAV_FULL = vk::gWaveMoni[1].WAV_CVAL_UP = kLong;
  vk::gWaveMoni[1].WAV_CVAL_ONOFF = true;
  vk::gXYMoni[1].XY_CVALDOWN = {kLong, 2};
  vk::gXYMoni[1].XY_C_POINT = 7;
  vk::gBarMoni[1].BAR_CVAL_UP = {1, kLong, 3, 4};
  vk::gBarMoni[1].BAR_CVAL_ONOFF = {true, false, true, false};
  vk::gCircleMoni[1].CRL_CVAL_DOWN = kLong;
  vk::gCircleMoni[1].CRL_C_FORE = 8;
  const auto before =
      std::tuple(vk::gNumMoni, vk::gWaveMoni, vk::gXYMoni, vk::gBarMoni, vk::gCircleMoni);
  for (const auto kind : vk::kMonitorKinds) {
    auto& form = open(kind);
    const bool numerical = kind == MonitorKind::kNumerical;
    EXPECT_EQ(control<QWidget>(form, "fraAbnormal")->isVisible(), numerical);
    const bool one = kind != MonitorKind::kXY && kind != MonitorKind::kBar;
    EXPECT_EQ(control<QLineEdit>(form, one ? "txtUp" : "txtUp(1)")->isVisible(), numerical);
    set(form);
  }
  EXPECT_TRUE(before ==
              std::tie(vk::gNumMoni, vk::gWaveMoni, vk::gXYMoni, vk::gBarMoni, vk::gCircleMoni));
}

TEST_F(frmMonitorSettingTest, AnEntryIsCheckedWhenItsFieldIsLeft) {
  auto& form = open(MonitorKind::kWave);
  auto* scale = control<QComboBox>(form, "cmbYScale");
  auto* serial = control<QComboBox>(form, "cmbSerNum");
  scale->setFocus();
  EXPECT_EQ(scale->lineEdit()->selectedText(), "1000");
  QTest::keyClicks(scale, "0");
  // Another window or the drop-down is no leaving.
  for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
    QFocusEvent event(QEvent::FocusOut, reason);
    QApplication::sendEvent(scale, &event);
    QTest::qWait(1);
  }
  EXPECT_EQ(desk.takeLog(), "");
  serial->setFocus();
  QTRY_COMPARE_WITH_TIMEOUT(desk.log.size(), 1U, 1000);
  EXPECT_EQ(desk.takeLog(), kInvalid);
  EXPECT_EQ(scale->lineEdit()->selectedText(), "0");
  EXPECT_TRUE(serial->hasFocus());

  QTest::keyClicks(serial, "12345678");
  QTest::keyClick(serial, Qt::Key_Return);
  EXPECT_EQ(desk.takeLog(), kInvalid);
  EXPECT_EQ(serial->lineEdit()->selectedText(), "12345678");
  QTest::keyClicks(serial, "1");
  QTest::keyClick(serial, Qt::Key_Return);  // valid, but the scale is not
  EXPECT_EQ(desk.takeLog(), kInvalid);
  EXPECT_TRUE(form.isVisible() && scale->hasFocus());
  QTest::qWait(1);
  EXPECT_EQ(desk.takeLog(), "") << "a move of the focus by the program is no leaving";
  QTest::keyClicks(scale, "50");
  QTest::keyClick(scale, Qt::Key_Enter);
  EXPECT_FALSE(form.isVisible());
  EXPECT_TRUE(vk::gWaveMoni[1].WAV_SER == 1 && vk::gWaveMoni[1].WAV_FULL == 50);
}

TEST_F(frmMonitorSettingTest, CancelWritesAndComplainsNothing) {
  auto& form = open(MonitorKind::kCircle);
  auto* scale = control<QComboBox>(form, "cmbScale(0)");
  scale->setFocus();
  QTest::keyClicks(scale, "x");
  QTest::mouseClick(control<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
  desk.doEvents();
  EXPECT_EQ(desk.takeLog(), "");
  EXPECT_EQ(vk::gCircleMoni[1], vk::CircleMonitorRec{});

  auto& again = open(MonitorKind::kCircle);
  auto* caption = control<QLineEdit>(again, "txtCaption");
  caption->setFocus();
  QTest::keyClick(caption, Qt::Key_Return);
  enter(again, "txtCaption=a,b|cmdSet");
  EXPECT_EQ(desk.takeLog(), kInvalid);
  EXPECT_TRUE(again.isVisible() && caption->hasFocus());
  QTest::keyClick(caption, Qt::Key_Escape);
  EXPECT_FALSE(again.isVisible());
}

TEST_F(frmMonitorSettingTest, AnInvalidLimitStandsInTheWayOnlyWhereItCanBeReached) {
  auto& form = open(MonitorKind::kNumerical);
  desk.colours = {0x010203, 0x040506};
  enter(form, "chkCaution|cmdColor(2)");
  desk.takeLog();
  auto* limit = control<QLineEdit>(form, "txtUp");
  limit->setFocus();
  limit->setText("abc");
  control<QPushButton>(form, "cmdColor(2)")->setFocus();
  enter(form, "cmdColor(2)");
  EXPECT_EQ(desk.takeLog(), kInvalid) << "and no colour dialog";
  enter(form, "chkCaution");
  EXPECT_EQ(limit->text().toStdString(), vk::numberText(vk::gNumMoni[1].NUM_CVAL_UP, 0));
  enter(form, "chkCaution");
  EXPECT_EQ(control<vk::ColourArea>(form, "picAbnBack")->backColor(), vk::gNumMoni[1].NUM_C_BACK);
  enter(form, "chkCaution");
  set(form);
  EXPECT_TRUE(desk.takeLog().empty() && vk::gNumMoni[1].NUM_C_BACK == 0x010203);
}

TEST_F(frmMonitorSettingTest, TheSamplesFollow) {
  vk::gNumMoni[1].NUM_C_BACK = 5;
  auto& form = open(MonitorKind::kNumerical);
  const auto back = [&](const char* name) {
    return control<vk::ColourArea>(form, name)->backColor();
  };
  EXPECT_FALSE(control<QWidget>(form, "cmdColor(2)")->isEnabled());
  EXPECT_FALSE(control<QWidget>(form, "lblUpper")->isEnabled());
  control<QCheckBox>(form, "chkCaution")->click();
  EXPECT_TRUE(control<QWidget>(form, "cmdColor(2)")->isEnabled());
  EXPECT_EQ(back("picAbnBack"), 5);
  desk.colours = {0x0000FF};
  QTest::mouseClick(control<QWidget>(form, "picColor(0)"), Qt::LeftButton);
  QTest::mouseClick(control<QWidget>(form, "picColor(1)"), Qt::LeftButton);  // cancelled
  EXPECT_TRUE(back("picColor(0)") == 255 && back("picNmlBack") == 255);
  const auto* fore = control<QLabel>(form, "lblNmlFore");
  EXPECT_EQ(fore->palette().color(QPalette::WindowText), QColor(Qt::white));
  control<QComboBox>(form, "cmbPoint")->setCurrentIndex(4);
  EXPECT_EQ(fore->text(), "0.0000");
  enter(form, "txtUp=5|txtDown=5|cmdSet");
  EXPECT_TRUE(
      desk.takeLog().ends_with("box[入力ｴﾗｰ][上限値より下限値を小さい値にしてください。]\n"));
  EXPECT_EQ(control<QLineEdit>(form, "txtDown")->selectedText(), "5");
  EXPECT_EQ(vk::gNumMoni[1].NUM_BACK, vk::kDarkGrey);
}

TEST_F(frmMonitorSettingTest, OneDialogServesAllMonitorsOfItsKind) {
  vk::gBarMoni[2].BAR_CAPTION = "second";
  vk::gBarMoni[2].BAR_CH = {9, -4, 2, 3};
  std::vector<std::string> calls;
  auto& form = open(MonitorKind::kBar, 1);
  enter(form, "txtCaption=lost|cmbYScale(0)=x");
  EXPECT_EQ(&open(MonitorKind::kBar, 2), &form);
  EXPECT_EQ(control<QLineEdit>(form, "txtCaption")->text(), "second");
  EXPECT_EQ(control<QComboBox>(form, "cmbChNum(0)")->currentText(), "Ch 4");
  // A reconnect may leave no window behind the dialog.
  set(form);
  FakeMonitor window(MonitorKind::kBar, 1, calls);
  set(open(MonitorKind::kBar, 1));
  EXPECT_EQ(calls, std::vector<std::string>{"bar 1 init"});
  EXPECT_EQ(vk::gBarMoni[1].BAR_CAPTION, "");
  EXPECT_EQ(vk::gBarMoni[2].BAR_CH[1], 1);
}

}  // namespace
}  // namespace vktest
