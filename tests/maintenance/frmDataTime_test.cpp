// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "maintenance/frmDataTime.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace vktest {
namespace {

class frmDataTimeTest : public BoxWindowTest {
 protected:
  frmDataTimeTest() { connect(kThreeBoxes); }
  static QLineEdit* box(QDialog& form, int i) {
    return control<QLineEdit>(form, qPrintable(vk::elementName("txtDate", i)));
  }
  static std::string focused(QDialog& form) {
    return form.focusWidget() ? vk::fromQt(form.focusWidget()->objectName()) : "";
  }
};

TEST_F(frmDataTimeTest, EnterChecksAndMovesOnAndTabOnlyMovesOn) {
  vk::frmDataTime form(4810021);
  EXPECT_EQ(box(form, 0)->text(), "");
  form.show();
  const int year = vk::desktop().now().year;
  EXPECT_EQ(box(form, 0)->text(), QString::number(year));
  EXPECT_EQ(form.windowTitle(), "Date-Time Setting");
  box(form, 1)->setText("13");
  std::string path = focused(form);
  const auto press = [&](Qt::Key key) {
    QTest::keyClick(form.focusWidget(), key);
    path += " " + focused(form);
  };
  press(Qt::Key_Return);
  press(Qt::Key_Enter);  // the thirteenth month
  EXPECT_EQ(desk.takeLog(), "box[Input Error][Outside value]\n");
  press(Qt::Key_Tab);
  for (int i = 2; i < 6; ++i) press(Qt::Key_Return);
  EXPECT_EQ(path,
            "txtDate(0) txtDate(1) txtDate(1) txtDate(2) txtDate(3) txtDate(4) txtDate(5) cmdSet");
  EXPECT_EQ(desk.takeLog(), "");
  EXPECT_TRUE(form.isVisible());
  form.hide();
  form.show();
  EXPECT_EQ(box(form, 1)->text(), "13") << "filled a second time";
}

TEST_F(frmDataTimeTest, SetSendsAndClosesUnlessItFails) {
  vk::frmDataTime form(4800137);
  form.show();
  const char* const texts[] = {"2024", "2", "29", "x", "5", "06"};
  for (int i = 0; i < 6; ++i) box(form, i)->setText(texts[i]);
  auto* set = control<QPushButton>(form, "cmdSet");
  set->click();
  EXPECT_EQ(desk.takeLog(), "box[Input Error][Invalid　value]\n");
  EXPECT_EQ(focused(form), "txtDate(3)");
  box(form, 3)->setText("04");
  bench.box(1).faults.add({vksim::FaultKind::kError, "RTM", 20, 1});
  set->click();
  EXPECT_EQ(desk.takeLog(), "box[USB Error][Parameter Error[ERROR-20]]\n");
  EXPECT_TRUE(form.isVisible());
  set->click();
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(bench.ask(2, "STA20").substr(3, 17), "24/02/29 04:05:06");
  form.show();
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace vktest
