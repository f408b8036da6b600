// SPDX-License-Identifier: MIT
#include "monitors/frmMoniCircle.h"

#include <QLabel>
#include <QPushButton>

#include "desktop/clsPictureBox.h"
#include "tests/monitors/monitor_window.h"

namespace vktest {
namespace {

class MoniCircle : public MonitorWindowTest {
 protected:
  MoniCircle() {
    auto& record = vk::gCircleMoni[0];
    record.CRL_SER = kSerial;
    record.CRL_CAPTION = "Hull";
  }
  static std::string texts(vk::frmMonitor& form) {
    std::string all;
    for (const auto* name : {"lblMonitor", "lblUnitNum", "lblYScale", "lblSerNum", "lblChNum",
                             "lblOffSet", "lbl1_3Scale", "lbl2_3Scale", "lblFullScale"}) {
      all += control<QLabel>(form, name)->text().toStdString() + "|";
    }
    return all;
  }
  static QColor pixel(vk::frmMonitor& form, int x, int y) {
    return control<vk::clsPictureBox>(form, "picWave")->grab().toImage().pixelColor(x, y);
  }
};

TEST_F(MoniCircle, ReadingsReachDialAndLabels) {
  auto& form = open(vk::MonitorKind::kCircle);
  auto* wave = control<vk::clsPictureBox>(form, "picWave");
  ASSERT_TRUE(wave->isVisible());
  EXPECT_EQ(wave->width(), wave->height());
  const int middle = wave->width() / 2;
  const QColor face(0x2F, 0x2F, 0x2F);
  feed(form, {"+01000"});
  EXPECT_EQ(form.windowTitle(), "[1] Hull");
  EXPECT_EQ(texts(form), "1000|ue|Y:1000ue[FS]|Ser: 4810021|Ch: 1|0|333.333333|666.666666|1000|");
  const int needle = middle + middle / 2;
  EXPECT_EQ(pixel(form, needle, middle), QColor(255, 0, 0));
  // Clear forgets the extremes; the picture stays until the next reading.
  control<QPushButton>(form, "cmdReset")->click();
  EXPECT_EQ(pixel(form, needle, middle), QColor(255, 0, 0));
  feed(form, {"+00000"});
  EXPECT_EQ(pixel(form, middle, needle), QColor(255, 0, 0));
  form.MoniDisConnect();
  form.showReadings();
  EXPECT_TRUE(texts(form).starts_with("---||"));
  EXPECT_EQ(pixel(form, middle, needle), QColor(255, 0, 0)) << "the needle stays";
  form.parentWidget()->resize(500, 400);
  settle(form);
  EXPECT_EQ(pixel(form, wave->width() / 2, wave->width() * 3 / 4), face);
  EXPECT_EQ(vk::gCircleMoni[0].CRL_WIDTH, 500 * 15);
}

TEST_F(MoniCircle, TheHiddenPicturesFollowTheDialOutOfSight) {
  auto& form = open(vk::MonitorKind::kCircle);
  const QRect dial = control<vk::clsPictureBox>(form, "picWave")->geometry();
  const QSize size = dial.size();
  EXPECT_EQ(control<vk::clsPictureBox>(form, "picWaveSub")->geometry(),
            QRect(QPoint(0, -size.height() - 100), size));
  EXPECT_EQ(control<vk::clsPictureBox>(form, "picSubCircle")->geometry(),
            QRect(QPoint(size.width() + 100, -size.height() - 100), size));
}

}  // namespace
}  // namespace vktest
