// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "conditions/frmList.h"

#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace vktest {
namespace {

using frmListTest = BoxWindowTest;

TEST_F(frmListTest, TwoColumnsSideBySideToReadAndToCopy) {
  connect(kThreeBoxes);
  vk::frmList form(2400052);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the hourglass stays";
  form.show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  EXPECT_EQ(form.windowTitle() + "|" + form.findChild<QGroupBox*>()->title(),
            "Setting/Conditions list|Header information");
  auto* captions = control<QLabel>(form, "lblList");
  auto* values = control<QLabel>(form, "lblData");
  EXPECT_TRUE(captions->text().startsWith("Model\nSerial No.\nChannel Mode\n"));
  EXPECT_TRUE(values->text().startsWith("VK-240Q\n2400052\n4 Channel\n")) << "wrong box";
  EXPECT_TRUE(values->text().contains("\nCF card not inserted.\n"));
  EXPECT_EQ(captions->y(), values->y());
  EXPECT_EQ(captions->sizeHint().height(), values->sizeHint().height());
  EXPECT_TRUE(values->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
  QTest::keyClick(&form, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("Model\tVK-240Q\nSerial No.\t"));
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  form.show();
  control<QPushButton>(form, "cmdClose")->click();
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace vktest
