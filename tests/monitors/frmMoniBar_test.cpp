// SPDX-License-Identifier: MIT
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "tests/monitors/monitor_window.h"

namespace vk {
namespace {

class MoniBar : public vktest::MonitorWindowTest {};

TEST_F(MoniBar, ShowsItsRecordAndFollowsItsControls) {
  auto& record = gBarMoni[0];
  record.BAR_SER = {kSerial, kSerial, kNoSerial, kSerial};
  record.BAR_CH = {1, 2, 1, 4};
  record.BAR_OFFSET = {3, 4, 5, 6};
  auto& form = open(MonitorKind::kBar);
  EXPECT_EQ(text(form, "lblChNum(1)") + text(form, "lblSerNum(2)") + text(form, "lblScale(3)"),
            "Ch: 2Ser: 99999991000ue/div");
  EXPECT_EQ(record.BAR_OFFSET[3], 6);
  vktest::control<QSlider>(form, "sdrYPos")->setValue(2);
  EXPECT_EQ(record.BAR_OFFSET[3], 2);
  feed(form, {"001000", "------", "*", "-0.00012345"});
  EXPECT_EQ(text(form, "lblMonitor(0)") + text(form, "lblMonitor(1)") +
                text(form, "lblMonitor(2)") + text(form, "lblMonitor(3)"),
            "1000unused----0.00012345");
  EXPECT_EQ(text(form, "lblUnit(0)") + text(form, "lblUnit(2)"), "ue");
  feed(form, {"*", "*", "*", "*"});
  EXPECT_EQ(text(form, "lblUnit(0)"), "");
  form.setUnitLabel();
  form.showReadings();
  EXPECT_EQ(text(form, "lblUnit(0)"), "ue");
}

TEST_F(MoniBar, ShowsNoPartOfANumber) {
  gBarMoni[0].BAR_SER.fill(kSerial);
  gBarMoni[0].BAR_WIDTH = 3400;
  auto& form = open(MonitorKind::kBar);
  feed(form, {"-1.234567E-06", "12", "12", "12"});
  EXPECT_EQ(text(form, "lblMonitor(0)"), "-1.234567E-06");
  const auto picture = [&](const char* name) {
    return vktest::control<QLabel>(form, name)->grab().toImage();
  };
  const QImage signs = picture("lblMonitor(0)");
  feed(form, {"-7.654321E-06", "34", "12", "12"});
  EXPECT_EQ(picture("lblMonitor(0)"), signs);
  EXPECT_NE(picture("lblMonitor(1)"), picture("lblMonitor(2)"));
  EXPECT_TRUE(vktest::control<QPushButton>(form, "cmdSet")->isVisible());
}

}  // namespace
}  // namespace vk
