// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "desktop/clsPictureBox.h"
#include "tests/monitors/monitor_window.h"

namespace vk {
namespace {

class MoniWave : public vktest::MonitorWindowTest {};

TEST_F(MoniWave, ShowsItsRecordAndFollowsItsControls) {
  auto& record = gWaveMoni[0];
  record.WAV_SER = kSerial;
  record.WAV_SPEED = 6;
  record.WAV_OFFSET = 99;
  record.WAV_CUP_ON = true;
  auto& form = open(MonitorKind::kWave);
  EXPECT_EQ(text(form, "lblSerNum") + text(form, "lblXScale") + text(form, "lblYScale"),
            "Ser: 4810021X:1sec/divY:1000ue/div");
  EXPECT_EQ(record.WAV_OFFSET, 99);
  EXPECT_TRUE(vktest::control<QCheckBox>(form, "chkOff")->isChecked());
  vktest::control<QSlider>(form, "sdrYPos")->setValue(2);
  EXPECT_EQ(record.WAV_OFFSET, 2);
  EXPECT_EQ(text(form, "lblOffSet"), "1000");
  vktest::control<QCheckBox>(form, "chkOff")->setChecked(false);
  EXPECT_FALSE(record.WAV_CUP_ON);
  feed(form, {"001000"});
  vktest::control<QCheckBox>(form, "chkPause")->setChecked(true);
  feed(form, {"002000"});
  EXPECT_EQ(text(form, "lblMonitor"), "1000");
  form.MoniDisConnect();
  form.showReadings();
  EXPECT_EQ(text(form, "lblMonitor") + text(form, "lblUnitNum"), "---");
  form.setUnitLabel();
  EXPECT_EQ(text(form, "lblUnitNum"), "ue");
}

TEST_F(MoniWave, TraceEntersAtTheRightAndClearWipesIt) {
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

TEST_F(MoniWave, PauseShowsWhatCameBeforeItAndStandsFromThenOn) {
  gWaveMoni[0].WAV_SER = kSerial;
  auto& form = open(MonitorKind::kWave);
  auto& wave = *vktest::control<clsPictureBox>(form, "picWave");
  const QImage blank = wave.grab().toImage();
  feed(form, {"001000"});
  desk.skipped += 20;
  const std::string_view before = "002000";
  form.Monitoring({&before, 1});  // no frame has shown it yet
  vktest::control<QCheckBox>(form, "chkPause")->setChecked(true);
  const QImage paused = wave.grab().toImage();
  EXPECT_NE(paused, blank);
  EXPECT_EQ(text(form, "lblMonitor"), "2000");
  desk.skipped += 20;
  feed(form, {"003000"});
  EXPECT_EQ(wave.grab().toImage(), paused);
  EXPECT_EQ(text(form, "lblMonitor"), "2000");
}

}  // namespace
}  // namespace vk
