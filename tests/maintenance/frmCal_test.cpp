// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "maintenance/frmCal.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace vktest {
namespace {

class frmCalTest : public BoxWindowTest {
 protected:
  frmCalTest() { connect(kThreeBoxes); }
  static QPushButton* button(QDialog& form, int i) {
    return control<QPushButton>(form, qPrintable(vk::elementName("cmdCal", i)));
  }
  /// The number of the picture that each button wears.
  static std::string pictures(QDialog& form) {
    std::string text;
    for (int i = 0; i < 3; ++i) {
      const auto worn = button(form, i)->icon().pixmap(button(form, i)->iconSize()).toImage();
      for (int k = 0; k < 6; ++k) {
        const auto* picture = control<QLabel>(form, qPrintable(vk::elementName("imgCal", k)));
        if (picture->pixmap().toImage() == worn) text += std::to_string(k);
      }
    }
    return text;
  }
};

TEST_F(frmCalTest, ThePressedButtonIsLitAndClosingSwitchesOff) {
  vk::frmCal form(4810021);
  form.show();
  EXPECT_EQ(control<QLabel>(form, "lblSer")->text(), "4810021");
  EXPECT_EQ(button(form, 0)->text() + button(form, 1)->text() + button(form, 2)->text(),
            "CAL OFF+CAL-CAL");
  EXPECT_EQ(pictures(form), "012");
  button(form, 1)->setFocus();
  QTest::keyClick(button(form, 1), Qt::Key_Return);
  EXPECT_EQ(pictures(form), "042");
  button(form, 2)->click();
  EXPECT_EQ(pictures(form), "015");
  // The box is asked for its name at closing, also by the close box of the window.
  bench.box(0).faults.add({vksim::FaultKind::kError, "MET", 22, 1});
  form.close();
  EXPECT_FALSE(bench.box(0).faults.take(vksim::FaultKind::kError, "MET").has_value());
  EXPECT_EQ(desk.takeLog(), "");
}

TEST_F(frmCalTest, AnotherModelClosesTheForm) {
  vk::frmCal form(4800137);
  form.show();
  button(form, 1)->click();
  EXPECT_EQ(desk.takeLog(), "box[Calibration][Possible calibration output for VK-480Qe only.]\n");
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace vktest
