// SPDX-License-Identifier: MIT
#include "monitors/frmMoniX_Y.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "desktop/clsPictureBox.h"
#include "tests/monitors/monitor_window.h"

namespace vktest {
namespace {

using vk::gXYMoni;

class MoniXY : public MonitorWindowTest {};

TEST_F(MoniXY, APlotOnScreen) {
  auto& record = gXYMoni[0];
  record = {};
  record.XY_SER = {kSerial, kSerial};
  record.XY_CH = {1, 3};
  record.XY_OFFSET = {-4, 2};
  auto& form = open(vk::MonitorKind::kXY);
  auto* slider = control<QSlider>(form, "sdrPos(0)");
  auto* plot = control<vk::clsPictureBox>(form, "picWave");
  auto* pointer = control<QWidget>(form, "shpPoint");
  EXPECT_EQ(texts(form, {"lblSerNum(0)", "lblSerNum(1)", "lblChNum(1)", "lblScale(0)",
                         "lblOffSet(0)", "lblOffSet(1)", "lblUnitNum(1)", "lblXCap2"}),
            "Y Ser: 4810021|X Ser: 4810021|Ch: 3|1000ue/div|-2000|1000|ue|X:|");
  EXPECT_EQ(slider->value(), -4);
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
  const auto middle = plot->rect().center() + QPoint(0, 3);
  EXPECT_EQ(plot->grab().toImage().pixel(plot->QWidget::width() / 2, middle.y()), qRgb(255, 0, 0));

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
  EXPECT_NE(plot->grab().toImage().pixel(plot->QWidget::width() / 2, middle.y()), qRgb(255, 0, 0));

  auto* value = control<QLabel>(form, "lblMonitor(0)");
  feed(form, {"-0.00001234567", "+00000"});
  EXPECT_LE(value->fontMetrics().horizontalAdvance(value->text()), value->width());
}

TEST_F(MoniXY, RecordKeepsTheSliderThatAFileHasOutOfRange) {
  gXYMoni[0].XY_OFFSET = {99, -99};
  auto& form = open(vk::MonitorKind::kXY);
  EXPECT_EQ(control<QSlider>(form, "sdrPos(1)")->value(), -10);
  EXPECT_EQ(gXYMoni[0].XY_OFFSET[1], -99) << "only the user changes it";
}

}  // namespace
}  // namespace vktest
