// SPDX-License-Identifier: MIT
// The wiring of the wave and the bar monitor: both are charts with a ground level slider.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "desktop/clsPictureBox.h"
#include "tests/monitors/monitor_window.h"

namespace vk {
namespace {

class ChartWindow : public vktest::MonitorWindowTest {
 protected:
  static std::string label(QWidget& form, const char* name) {
    auto* found = vktest::control<QLabel>(form, name);
    return found ? found->text().toStdString() : "";
  }
};

TEST_F(ChartWindow, WaveShowsItsRecordAndFollowsItsControls) {
  auto& record = gWaveMoni[0];
  record.WAV_SER = kSerial;
  record.WAV_SPEED = 6;
  record.WAV_OFFSET = 99;
  record.WAV_CUP_ON = true;
  auto& form = open(MonitorKind::kWave);
  EXPECT_EQ(label(form, "lblSerNum") + label(form, "lblXScale") + label(form, "lblYScale"),
            "Ser: 4810021X:1sec/divY:1000ue/div");
  EXPECT_EQ(record.WAV_OFFSET, 99);
  EXPECT_TRUE(vktest::control<QCheckBox>(form, "chkOff")->isChecked());
  vktest::control<QSlider>(form, "sdrYPos")->setValue(2);
  EXPECT_EQ(record.WAV_OFFSET, 2);
  EXPECT_EQ(label(form, "lblOffSet"), "1000");
  vktest::control<QCheckBox>(form, "chkOff")->setChecked(false);
  EXPECT_FALSE(record.WAV_CUP_ON);
  feed(form, {"001000"});
  vktest::control<QCheckBox>(form, "chkPause")->setChecked(true);
  feed(form, {"002000"});
  EXPECT_EQ(label(form, "lblMonitor"), "1000");
  form.MoniDisConnect();
  form.showReadings();
  EXPECT_EQ(label(form, "lblMonitor") + label(form, "lblUnitNum"), "---");
  form.setUnitLabel();
  EXPECT_EQ(label(form, "lblUnitNum"), "ue");
}

TEST_F(ChartWindow, WaveTraceEntersAtTheRightAndClearWipesIt) {
  gWaveMoni[0].WAV_SER = kSerial;
  auto& form = open(MonitorKind::kWave);
  auto& wave = *vktest::control<clsPictureBox>(form, "picWave");
  const auto traced = [&](int fromRight) {
    const QImage image = wave.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
      if (image.pixelColor(image.width() - fromRight, y) == QColor(255, 0, 0)) return true;
    }
    return false;
  };
  feed(form, {"001000"});
  desk.skipped += 20;
  feed(form, {"002000"});
  EXPECT_TRUE(traced(1));
  EXPECT_FALSE(traced(wave.width() / 2));
  vktest::control<QPushButton>(form, "cmdReset")->click();
  desk.skipped += 2;
  feed(form, {"002000"});
  EXPECT_TRUE(traced(1));
  EXPECT_FALSE(traced(12));
}

TEST_F(ChartWindow, BarShowsItsRecordAndFollowsItsControls) {
  auto& record = gBarMoni[0];
  record.BAR_SER = {kSerial, kSerial, kNoSerial, kSerial};
  record.BAR_CH = {1, 2, 1, 4};
  record.BAR_OFFSET = {3, 4, 5, 6};
  auto& form = open(MonitorKind::kBar);
  EXPECT_EQ(label(form, "lblChNum(1)") + label(form, "lblSerNum(2)") + label(form, "lblScale(3)"),
            "Ch: 2Ser: 99999991000ue/div");
  EXPECT_EQ(record.BAR_OFFSET[3], 6);
  vktest::control<QSlider>(form, "sdrYPos")->setValue(2);
  EXPECT_EQ(record.BAR_OFFSET[3], 2);
  feed(form, {"001000", "------", "*", "-0.00012345"});
  EXPECT_EQ(label(form, "lblMonitor(0)") + label(form, "lblMonitor(1)") +
                label(form, "lblMonitor(2)") + label(form, "lblMonitor(3)"),
            "1000unused----0.00012345");
  EXPECT_EQ(label(form, "lblUnit(0)") + label(form, "lblUnit(2)"), "ue");
  feed(form, {"*", "*", "*", "*"});
  EXPECT_EQ(label(form, "lblUnit(0)"), "");
  form.setUnitLabel();
  form.showReadings();
  EXPECT_EQ(label(form, "lblUnit(0)"), "ue");
}

TEST_F(ChartWindow, TheFirstLayoutDraws) {
  for (const auto kind : {MonitorKind::kWave, MonitorKind::kBar}) {
    auto* wave = vktest::control<clsPictureBox>(open(kind), "picWave");
    EXPECT_EQ(wave->grab().toImage().pixel(1, 1), qRgb(0x2F, 0x2F, 0x2F));
  }
}

TEST_F(ChartWindow, ABarShowsNoPartOfANumber) {
  gBarMoni[0].BAR_SER.fill(kSerial);
  gBarMoni[0].BAR_WIDTH = 3400;
  auto& form = open(MonitorKind::kBar);
  feed(form, {"-1.234567E-06", "12", "12", "12"});
  EXPECT_EQ(label(form, "lblMonitor(0)"), "-1.234567E-06");
  const auto picture = [&](const char* name) {
    return vktest::control<QLabel>(form, name)->grab().toImage();
  };
  const QImage signs = picture("lblMonitor(0)");
  feed(form, {"-7.654321E-06", "34", "12", "12"});
  EXPECT_EQ(picture("lblMonitor(0)"), signs);
  EXPECT_NE(picture("lblMonitor(1)"), picture("lblMonitor(2)"));
  EXPECT_TRUE(vktest::control<QPushButton>(form, "cmdSet")->isVisible());
}

/// No part of a control is cut off, and no two lie upon each other, at any size from half the
/// default on.
TEST_F(ChartWindow, ControlsNeverOverlap) {
  for (const auto kind : {MonitorKind::kWave, MonitorKind::kBar}) {
    for (const double size : {0.5, 0.75, 1.0, 3.0}) {
      auto fields = monitorFields(kind, 0);
      fields.width = static_cast<int32_t>(6800 * size);
      fields.height = static_cast<int32_t>((kind == MonitorKind::kWave ? 2500 : 3500) * size);
      auto& form = open(kind);
      const auto all = form.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
      for (const auto* one : all) {
        if (!one->isVisible() || one->objectName() == "picWaveSub") continue;
        EXPECT_TRUE(form.rect().contains(one->geometry())) << one->objectName().toStdString();
        for (const auto* other : all) {
          const bool apart =
              one == other || !other->isVisible() || !one->geometry().intersects(other->geometry());
          EXPECT_TRUE(apart) << one->objectName().toStdString() << " "
                             << other->objectName().toStdString() << " " << size;
        }
      }
      form.unload();
      desk.doEvents();
    }
  }
}

}  // namespace
}  // namespace vk
