// SPDX-License-Identifier: MIT
#include "shell/frmMsgButton.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "tests/support/window_desktop.h"
#include "tests/support/window_tools.h"

namespace vktest {
namespace {

TEST(frmMsgButtonTest, CountsDownInFifthsOfASecondAndCloses) {
  const WindowDesktop desk;
  vk::frmMsgButton form("Communication Error", "It is reconnected.", "Reconnecting..", "OK");
  const auto text = [&](const char* name) {
    return control<QLabel>(form, name)->text().toStdString();
  };
  const auto* first = control<QTimer>(form, "Timer1");
  auto* second = control<QTimer>(form, "Timer2");
  EXPECT_TRUE(first->isSingleShot() && first->interval() == 1000);
  EXPECT_TRUE(!second->isActive() && second->interval() == 200);
  EXPECT_EQ(text("lblMain") + "|" + text("lblSub1"), "It is reconnected.|Reconnecting..");
  std::string seen;
  int ticks = 0;
  QObject::connect(second, &QTimer::timeout, &form, [&] {
    ++ticks;
    if (!seen.ends_with(text("lblSub2") + ",")) seen += text("lblSub2") + ",";
  });
  form.show();
  second->start(0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }));
  EXPECT_EQ(ticks, 50);
  EXPECT_EQ(seen, "10 s,9 s,8 s,7 s,6 s,5 s,4 s,3 s,2 s,1 s,0 s,");
  // The button ends it at once.
  form.show();
  control<QPushButton>(form, "cmdClose")->click();
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace vktest
