// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "shell/frmStart.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace vktest {
namespace {

/// A user who has no patience.
class EscapingDesktop : public WindowDesktop {
 public:
  explicit EscapingDesktop(QWidget& form) : form_(form) {}
  void doEvents() override {
    QTest::keyClick(&form_, Qt::Key_Escape);
    clsQtDesktop::doEvents();
  }

 private:
  QWidget& form_;
};

class frmStartTest : public BoxWindowTest {
 protected:
  /// Shows the form and lets it search, which it does to the end.
  void search(vk::frmStart& start, const std::string& scenario) {
    bench.bus.rig.recorders.clear();
    bench.load(scenario);
    start.show();
    auto* ok = control<QPushButton>(start, "cmdOK");
    {
      const EscapingDesktop impatient(start);
      EXPECT_TRUE(QTest::qWaitFor([ok] { return ok->isEnabled(); }));
    }
    vk::setDesktop(&desk);
    EXPECT_TRUE(start.isVisible());
  }
  static std::string log(vk::frmStart& start) {
    return vk::fromQt(control<QPlainTextEdit>(start, "txtComment")->toPlainText());
  }
  static std::string rows(vk::frmStart& start) {
    std::string text;
    const auto* list = control<QTreeWidget>(start, "lvwCnnt240Q");
    for (int i = 0; i < list->topLevelItemCount(); ++i)
      text +=
          vk::fromQt(list->topLevelItem(i)->text(0) + "|" + list->topLevelItem(i)->text(1)) + "\n";
    return text;
  }

  vk::frmStart form;
};

TEST_F(frmStartTest, ListsAndLogsWhatItFinds) {
  EXPECT_EQ(control<QLabel>(form, "lblSearch")->text(), "Searching for instruments...");
  EXPECT_FALSE(control<QPushButton>(form, "cmdOK")->isEnabled());
  search(form, kThreeBoxes);
  const auto* list = control<QTreeWidget>(form, "lvwCnnt240Q");
  EXPECT_TRUE(list->columnWidth(0) == 127 && list->columnWidth(1) == 260);
  EXPECT_EQ(control<QLabel>(form, "lblSearch")->text(), "3 instruments are ready.");
  EXPECT_EQ(rows(form), "4810021|\n4800137|\n2400052|\n");
  EXPECT_EQ(log(form),
            "===== VK-480Qe =====\n"
            "Serial Number : 4810021 Connection has been confirmed.\n"
            "Serial Number : 4810021 The set contents are normal.\n"
            " CF card has been recognized.\n"
            "===== VK-480Q =====\n"
            "Serial Number : 4800137 Connection has been confirmed.\n"
            "Serial Number : 4800137 The set contents are normal.\n"
            " CF card has been recognized.\n"
            "===== VK-240Q =====\n"
            "Serial Number : 2400052 Connection has been confirmed.\n"
            "Serial Number : 2400052 The set contents are normal.\n"
            " CF card is not inserted.\n"
            "Connected = 3Unit\n");
  // The close box is no OK.
  form.close();
  EXPECT_TRUE(vk::gStartOK == 0 && !form.isVisible());
}

TEST_F(frmStartTest, TheClocksRunAndAreSetForTickedBoxesOnly) {
  search(form, kThreeBoxes);
  bench.clock.wait(3 * vksim::kSecond);
  auto* timer = control<QTimer>(form, "tmrDateTime");
  EXPECT_TRUE(timer->isActive());
  timer->setInterval(0);
  const std::string first = "4810021|2026/01/05  09:30:03\n",
                    last = "2400052|2026/01/05  09:30:03\n";
  EXPECT_TRUE(QTest::qWaitFor([&] { return rows(form).ends_with(last); }));
  EXPECT_EQ(rows(form), first + "4800137|2026/01/05  09:30:03\n" + last);
  timer->stop();
  control<QTreeWidget>(form, "lvwCnnt240Q")->topLevelItem(1)->setCheckState(0, Qt::Checked);
  const std::string today = vk::fromQt(QDate::currentDate().toString("yyyy/MM/dd"));
  control<QPushButton>(form, "cmdSet")->click();
  EXPECT_TRUE(rows(form).starts_with(first + "4800137|" + today));
  EXPECT_TRUE(rows(form).ends_with(last));
  EXPECT_EQ(desk.takeLog(), "");
}

TEST_F(frmStartTest, EveryResultOfTheSearchHasItsWayOut) {
  std::string nine;
  for (int i = 0; i < 9; ++i) nine += "[box 480010" + std::to_string(i) + "]\n";
  const std::string upgrade = "[box 4800137]\nupgrade_mode = yes\n";
  const std::tuple<std::string, int32_t, const char*> rows[] = {
      {"", vk::kStartNormal, "VK-480Q is not connected.\n"},
      {nine, vk::kStartTooMany, "Maximum number of connection is 8.\nConfirm the connection.\n"},
      {upgrade, vk::kStartUpgrade,
       "[Caution !!]\nVK-480Q is in upgrade mode of the program.\n"
       "Don't upgrade when you connect several VK-480Q.\n"},
      {upgrade + "[box 4810021]\n", vk::kStartSeveralUpgrade,
       "[Caution !!]\nSeveral VK-480Qs in upgrade mode of program are connected.\n"
       "Cannot be upgraded with several units in use.\n"}};
  for (const auto& [scenario, mode, said] : rows) {
    SCOPED_TRACE(mode);
    vk::gStartOK = 1;
    vk::frmStart start;
    search(start, scenario);
    EXPECT_EQ(vk::gStartOK, mode == vk::kStartTooMany ? 0 : 1);
    EXPECT_EQ(vk::gStartMode, mode);
    EXPECT_EQ(frmStartTest::rows(start) + log(start), said);
    EXPECT_FALSE(control<QPushButton>(start, "cmdSet")->isEnabled());
    control<QPushButton>(start, "cmdOK")->click();
    EXPECT_TRUE(vk::gStartOK == 1 && !start.isVisible());
  }
}

}  // namespace
}  // namespace vktest
