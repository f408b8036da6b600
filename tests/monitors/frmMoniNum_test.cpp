// SPDX-License-Identifier: MIT
// The windows of the numerical and the X-Y monitor.
#include "monitors/frmMoniNum.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "desktop/clsPictureBox.h"
#include "monitors/frmMoniX_Y.h"
#include "tests/monitors/monitor_window.h"

namespace vktest {
namespace {

using vk::gNumMoni;
using vk::gXYMoni;

class ValueWindowsTest : public MonitorWindowTest {
 protected:
  static std::string text(QWidget& form, const char* name) {
    return control<QLabel>(form, name)->text().toStdString();
  }
  static std::string texts(QWidget& form, std::initializer_list<const char*> names) {
    std::string all;
    for (const char* name : names) all += text(form, name) + "|";
    return all;
  }
  static QRgb corner(QWidget& form, const char* name) {
    return control<QWidget>(form, name)->grab().toImage().pixel(1, 1);
  }
};

TEST_F(ValueWindowsTest, ANumberOnScreen) {
  auto& record = gNumMoni[0];
  record = {};
  record.NUM_SER = kSerial;
  record.NUM_CH = 2;
  record.NUM_CVAL_ONOFF = true;
  record.NUM_CVAL_UP = 10;
  record.NUM_C_BACK = vk::kRed;
  auto& form = open(vk::MonitorKind::kNumerical);
  EXPECT_TRUE(control<QWidget>(form, "picMonitor")->isVisible());
  EXPECT_FALSE(control<QWidget>(form, "picMoniSub")->geometry().intersects(form.rect()));
  EXPECT_EQ(texts(form, {"lblSerNum", "lblChNum", "lblUnitNum", "lblMaxCap", "lblMinCap"}),
            "Ser: 4810021|Ch: 2|ue|max:|min:|");
  EXPECT_EQ(text(form, "lblMaxMoni"), "");

  feed(form, {"+00012"});
  feed(form, {"+00011"});
  EXPECT_EQ(texts(form, {"lblMaxMoni", "lblMinMoni"}), "+12|+11|");
  EXPECT_EQ(corner(form, "picMonitor"), qRgb(255, 0, 0));
  EXPECT_EQ(corner(form, "picUnit"), qRgb(255, 0, 0));
  EXPECT_EQ(corner(form, "picMaxMoni"), qRgb(0x2F, 0x2F, 0x2F));

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

TEST_F(ValueWindowsTest, TheNumberGrowsWithTheWindow) {
  auto& form = open(vk::MonitorKind::kNumerical);
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

TEST_F(ValueWindowsTest, APlotOnScreen) {
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

TEST_F(ValueWindowsTest, RecordKeepsTheSliderThatAFileHasOutOfRange) {
  gXYMoni[0].XY_OFFSET = {99, -99};
  auto& form = open(vk::MonitorKind::kXY);
  EXPECT_EQ(control<QSlider>(form, "sdrPos(1)")->value(), -10);
  EXPECT_EQ(gXYMoni[0].XY_OFFSET[1], -99) << "only the user changes it";
}

}  // namespace
}  // namespace vktest
