// SPDX-License-Identifier: MIT
// The windows of all kinds in a child area, without a link: readings are handed in by the test.
#include "monitors/frmMonitor.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

#include "desktop/clsPictureBox.h"
#include "monitors/frmMoniX_Y.h"
#include "monitors/frmMonitorForms.h"
#include "monitors/mdlMonitorCycle.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/window_desktop.h"
#include "tests/support/window_tools.h"

namespace vktest {
namespace {

using vk::MonitorKind;

class MonitorWindowTest : public ::testing::Test {
 protected:
  static constexpr int32_t kSerial = 4810021;

  MonitorWindowTest() {
    vk::resetBoxTable();
    vk::resetMonitorRecords();
    vk::resetMonitorCycle();
    vk::gBoxTable[1].handle = 1;
    vk::gBoxTable[1].serial = kSerial;
    vk::gMonitorHandlers.load = [this](MonitorKind kind) {
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
  vk::frmMonitor& open(MonitorKind kind, std::size_t index = 0) {
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

TEST_F(MonitorWindowTest, BarShowsItsRecordAndFollowsItsControls) {
  auto& record = vk::gBarMoni[0];
  record.BAR_SER = {kSerial, kSerial, vk::kNoSerial, kSerial};
  record.BAR_CH = {1, 2, 1, 4};
  record.BAR_OFFSET.fill(6);
  auto& form = open(MonitorKind::kBar);
  EXPECT_EQ(texts(form, {"lblChNum(1)", "lblSerNum(2)", "lblScale(3)"}),
            "Ch: 2|Ser: 9999999|1000ue/div|");
  EXPECT_EQ(record.BAR_OFFSET[3], 6);
  control<QSlider>(form, "sdrYPos")->setValue(2);
  EXPECT_EQ(record.BAR_OFFSET[3], 2);
  feed(form, {"001000", "------", "*", "-0.00012345"});
  EXPECT_EQ(texts(form, {"lblMonitor(0)", "lblMonitor(1)", "lblMonitor(2)", "lblMonitor(3)",
                         "lblUnit(0)", "lblUnit(2)"}),
            "1000|unused|---|-0.00012345|ue||");
  form.setUnitLabel();
  EXPECT_EQ(text(form, "lblUnit(2)"), "") << "no box, no unit";
}

TEST_F(MonitorWindowTest, BarShowsNoPartOfANumber) {
  vk::gBarMoni[0].BAR_SER.fill(kSerial);
  vk::gBarMoni[0].BAR_WIDTH = 3400;
  auto& form = open(MonitorKind::kBar);
  const auto picture = [&](const char* name) {
    return control<QLabel>(form, name)->grab().toImage();
  };
  feed(form, {"-1.234567E-06", "12", "12", "12"});
  const QImage signs = picture("lblMonitor(0)");
  feed(form, {"-7.654321E-06", "34", "12", "12"});
  EXPECT_EQ(picture("lblMonitor(0)"), signs);
  EXPECT_NE(picture("lblMonitor(1)"), picture("lblMonitor(2)"));
  EXPECT_TRUE(control<QPushButton>(form, "cmdSet")->isVisible());
}

TEST_F(MonitorWindowTest, WaveShowsItsRecordAndFollowsItsControls) {
  auto& record = vk::gWaveMoni[0];
  record.WAV_SER = kSerial;
  record.WAV_SPEED = 6;
  record.WAV_OFFSET = 99;
  record.WAV_CUP_ON = true;
  auto& form = open(MonitorKind::kWave);
  EXPECT_EQ(texts(form, {"lblSerNum", "lblXScale", "lblYScale"}),
            "Ser: 4810021|X:1sec/div|Y:1000ue/div|");
  EXPECT_EQ(record.WAV_OFFSET, 99);
  control<QSlider>(form, "sdrYPos")->setValue(2);
  EXPECT_EQ(record.WAV_OFFSET, 2);
  EXPECT_EQ(text(form, "lblOffSet"), "1000");
  control<QCheckBox>(form, "chkOff")->click();  // ticked as the record is
  EXPECT_FALSE(record.WAV_CUP_ON);
  feed(form, {"001000"});
  EXPECT_EQ(texts(form, {"lblMonitor", "lblUnitNum"}), "1000|ue|");
  form.MoniDisConnect();
  form.showReadings();
  EXPECT_EQ(texts(form, {"lblMonitor", "lblUnitNum"}), "---||");
}

TEST_F(MonitorWindowTest, WavePauseShowsWhatCameBeforeItAndStandsFromThenOn) {
  vk::gWaveMoni[0].WAV_SER = kSerial;
  auto& form = open(MonitorKind::kWave);
  const auto picture = [&] {
    return control<vk::clsPictureBox>(form, "picWave")->grab().toImage();
  };
  const QImage blank = picture();
  feed(form, {"001000"});
  desk.skipped += 20;
  const std::string_view before = "002000";
  form.Monitoring({&before, 1});  // no frame has shown it yet
  control<QCheckBox>(form, "chkPause")->click();
  const QImage paused = picture();
  EXPECT_NE(paused, blank);
  desk.skipped += 20;
  feed(form, {"003000"});
  EXPECT_EQ(picture(), paused);
  EXPECT_EQ(text(form, "lblMonitor"), "2000");
  control<QCheckBox>(form, "chkPause")->click();
  control<QPushButton>(form, "cmdReset")->click();
  desk.skipped += 1;
  feed(form, {"003000"});
  const QImage cleared = picture();
  for (int y = 0; y < cleared.height(); ++y)
    ASSERT_NE(cleared.pixelColor(cleared.width() - 12, y), QColor(255, 0, 0)) << "a trace at " << y;
}

TEST_F(MonitorWindowTest, CircleReadingsReachDialAndLabels) {
  vk::gCircleMoni[0].CRL_SER = kSerial;
  vk::gCircleMoni[0].CRL_CAPTION = "Hull";
  auto& form = open(MonitorKind::kCircle);
  auto* wave = control<vk::clsPictureBox>(form, "picWave");
  const auto pixel = [&](int x, int y) { return wave->grab().toImage().pixelColor(x, y); };
  ASSERT_TRUE(wave->isVisible());
  EXPECT_EQ(wave->width(), wave->height());
  for (const char* twin : {"picWaveSub", "picSubCircle"})
    EXPECT_FALSE(control<QWidget>(form, twin)->geometry().intersects(form.rect())) << twin;
  const int middle = wave->width() / 2;
  const int needle = middle + middle / 2;
  const QColor red(255, 0, 0);
  feed(form, {"+01000"});
  EXPECT_EQ(form.windowTitle(), "[1] Hull");
  EXPECT_EQ(texts(form, {"lblMonitor", "lblUnitNum", "lblYScale", "lblSerNum", "lblChNum",
                         "lblOffSet", "lbl1_3Scale", "lbl2_3Scale", "lblFullScale"}),
            "1000|ue|Y:1000ue[FS]|Ser: 4810021|Ch: 1|0|333.333333|666.666666|1000|");
  EXPECT_EQ(pixel(needle, middle), red);
  // Clear forgets the extremes; the picture stays until the next reading.
  control<QPushButton>(form, "cmdReset")->click();
  EXPECT_EQ(pixel(needle, middle), red);
  feed(form, {"+00000"});
  EXPECT_EQ(pixel(middle, needle), red);
  form.MoniDisConnect();
  form.showReadings();
  EXPECT_EQ(texts(form, {"lblMonitor", "lblUnitNum"}), "---||");
  EXPECT_EQ(pixel(middle, needle), red) << "the needle stays";
  form.parentWidget()->resize(500, 400);
  settle(form);
  EXPECT_EQ(pixel(wave->width() / 2, wave->width() * 3 / 4), QColor(0x2F, 0x2F, 0x2F));
  EXPECT_EQ(vk::gCircleMoni[0].CRL_WIDTH, 500 * 15);
}

TEST_F(MonitorWindowTest, NumANumberOnScreen) {
  auto& record = vk::gNumMoni[0];
  record.NUM_SER = kSerial;
  record.NUM_CH = 2;
  record.NUM_CVAL_ONOFF = true;
  record.NUM_CVAL_UP = 10;
  record.NUM_C_BACK = vk::kRed;
  auto& form = open(MonitorKind::kNumerical);
  EXPECT_TRUE(control<QWidget>(form, "picMonitor")->isVisible());
  EXPECT_FALSE(control<QWidget>(form, "picMoniSub")->geometry().intersects(form.rect()));
  EXPECT_EQ(
      texts(form, {"lblSerNum", "lblChNum", "lblUnitNum", "lblMaxCap", "lblMinCap", "lblMaxMoni"}),
      "Ser: 4810021|Ch: 2|ue|max:|min:||");
  const auto corner = [&](const char* name) {
    return control<QWidget>(form, name)->grab().toImage().pixel(1, 1);
  };
  feed(form, {"+00012"});
  feed(form, {"+00011"});
  EXPECT_EQ(texts(form, {"lblMaxMoni", "lblMinMoni"}), "+12|+11|");
  EXPECT_EQ(corner("picMonitor"), qRgb(255, 0, 0));
  EXPECT_EQ(corner("picUnit"), qRgb(255, 0, 0));
  EXPECT_EQ(corner("picMaxMoni"), qRgb(0x2F, 0x2F, 0x2F));

  control<QPushButton>(form, "cmdPReset")->click();
  feed(form, {"+00003"});
  EXPECT_EQ(texts(form, {"lblMaxMoni", "lblMinMoni"}), "+3|+11|");

  form.MoniDisConnect();
  form.showReadings();
  EXPECT_EQ(texts(form, {"lblMaxMoni", "lblMinMoni", "lblUnitNum"}), "--- |--- |--- |");
  vk::gBoxTable[1].unit[2] = 1;
  form.setUnitLabel();
  EXPECT_EQ(text(form, "lblUnitNum"), "mm");
}

TEST_F(MonitorWindowTest, NumTheNumberGrowsWithTheWindow) {
  auto& form = open(MonitorKind::kNumerical);
  auto* picture = control<vk::clsPictureBox>(form, "picMoniSub");
  const int before = picture->fontSize();
  form.parentWidget()->resize(800, 600);
  settle(form);
  EXPECT_GT(picture->fontSize(), before);
  EXPECT_EQ(picture->size(), control<QWidget>(form, "picMonitor")->size());
  EXPECT_TRUE(picture->font().bold());
  form.parentWidget()->resize(1200, 100);
  settle(form);
  auto* caption = control<QLabel>(form, "lblMaxCap");
  EXPECT_LE(caption->fontMetrics().height(), caption->parentWidget()->height());
  form.parentWidget()->resize(1, 1);
  settle(form);
  EXPECT_EQ(picture->height(), control<QWidget>(form, "picMonitor")->height());
}

TEST_F(MonitorWindowTest, XYAPlotOnScreen) {
  auto& record = vk::gXYMoni[0];
  record.XY_SER = {kSerial, kSerial};
  record.XY_CH = {1, 3};
  record.XY_OFFSET = {-4, -99};
  auto& form = open(MonitorKind::kXY);
  auto* slider = control<QSlider>(form, "sdrPos(0)");
  auto* plot = control<vk::clsPictureBox>(form, "picWave");
  auto* pointer = control<QWidget>(form, "shpPoint");
  EXPECT_EQ(texts(form, {"lblSerNum(0)", "lblSerNum(1)", "lblChNum(1)", "lblScale(0)",
                         "lblOffSet(0)", "lblOffSet(1)", "lblUnitNum(1)", "lblXCap2"}),
            "Y Ser: 4810021|X Ser: 4810021|Ch: 3|1000ue/div|-2000|-49500|ue|X:|");
  EXPECT_EQ(slider->value(), -4);
  EXPECT_EQ(control<QSlider>(form, "sdrPos(1)")->value(), -10);
  EXPECT_EQ(record.XY_OFFSET[1], -99) << "only the user changes it";
  EXPECT_EQ(plot->width(), plot->QWidget::height());
  EXPECT_EQ(slider->height(), plot->QWidget::height() + 16);

  slider->setValue(0);
  control<QSlider>(form, "sdrPos(1)")->setValue(0);
  EXPECT_EQ(record.XY_OFFSET, (std::array<int32_t, 2>{0, 0}));
  EXPECT_EQ(text(form, "lblOffSet(0)"), "0");
  EXPECT_EQ(slider->toolTip(), "Gnd Level");

  feed(form, {"+01000", "+00000"});
  feed(form, {"-01000", "+00000"});
  EXPECT_TRUE(pointer->isVisible());
  EXPECT_EQ(pointer->geometry().center().x(), plot->QWidget::width() / 2);
  EXPECT_EQ(text(form, "lblMonitor(0)"), "-1000");
  const auto nearMiddle = [&] {
    return plot->grab().toImage().pixelColor(plot->QWidget::width() / 2,
                                             plot->rect().center().y() + 3);
  };
  EXPECT_EQ(nearMiddle(), QColor(255, 0, 0));

  feed(form, {"-01000", "*"});
  EXPECT_FALSE(pointer->isVisible());
  EXPECT_EQ(texts(form, {"lblMonitor(1)", "lblUnitNum(1)"}), "---||");
  form.setUnitLabel();
  EXPECT_EQ(text(form, "lblUnitNum(1)"), "ue");
  dynamic_cast<vk::frmMoniX_Y&>(form).MoniLblDisconnect(0);
  form.showReadings();
  EXPECT_EQ(texts(form, {"lblMonitor(0)", "lblUnitNum(0)"}), "---||");

  control<QPushButton>(form, "cmdReset")->click();
  feed(form, {"-01000", "+00000"});
  EXPECT_NE(nearMiddle(), QColor(255, 0, 0));

  auto* value = control<QLabel>(form, "lblMonitor(0)");
  feed(form, {"-0.00001234567", "+00000"});
  EXPECT_LE(value->fontMetrics().horizontalAdvance(value->text()), value->width());
}

/// No part of a control is cut off, and no two lie upon each other, at any size from half the
/// default on.
TEST_F(MonitorWindowTest, ControlsNeverOverlap) {
  for (const auto kind : vk::kMonitorKinds) {
    for (const double size : {0.5, 0.75, 1.0, 3.0}) {
      auto fields = vk::monitorFields(kind, 0);
      fields.width = static_cast<int32_t>(6800 * size);
      fields.height = static_cast<int32_t>((kind == MonitorKind::kWave ? 2500 : 3500) * size);
      auto& form = open(kind);
      QRegion taken;
      for (const auto* one : form.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const QString name = one->objectName();
        if (!one->isVisible() || name.contains("Sub")) continue;
        EXPECT_TRUE(form.rect().contains(one->geometry()) && !taken.intersects(one->geometry()))
            << name.toStdString() << " " << size;
        taken += one->geometry();
      }
      form.unload();
      desk.doEvents();
    }
  }
}

TEST_F(MonitorWindowTest, WithoutAStoredPlaceNoneHidesAnother) {
  vk::gNumMoni[1].NUM_LEFT = 300 * 15;
  vk::gNumMoni[1].NUM_TOP = 100 * 15;
  const auto corner = [&](MonitorKind kind, std::size_t index) {
    return open(kind, index).parentWidget()->pos();
  };
  EXPECT_EQ(corner(MonitorKind::kNumerical, 0), QPoint(0, 0));
  EXPECT_EQ(corner(MonitorKind::kWave, 0), QPoint(400, 0));
  EXPECT_EQ(corner(MonitorKind::kBar, 0), QPoint(0, 167));
  EXPECT_EQ(corner(MonitorKind::kNumerical, 1), QPoint(300, 100)) << "a stored place stays";
}

}  // namespace
}  // namespace vktest
