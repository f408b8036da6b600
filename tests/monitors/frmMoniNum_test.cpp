// SPDX-License-Identifier: MIT
#include "monitors/frmMoniNum.h"

#include <QLabel>
#include <QPushButton>

#include "desktop/clsPictureBox.h"
#include "tests/monitors/monitor_window.h"

namespace vktest {
namespace {

using vk::gNumMoni;

class MoniNum : public MonitorWindowTest {
 protected:
  static QRgb corner(QWidget& form, const char* name) {
    return control<QWidget>(form, name)->grab().toImage().pixel(1, 1);
  }
};

TEST_F(MoniNum, ANumberOnScreen) {
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

TEST_F(MoniNum, TheNumberGrowsWithTheWindow) {
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

}  // namespace
}  // namespace vktest
