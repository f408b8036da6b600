// SPDX-License-Identifier: MIT
#include "desktop/clsQtDesktop.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/clsFieldGuard.h"
#include "desktop/frmStatusBar.h"
#include "desktop/qtText.h"
#include "tests/support/window_tools.h"

namespace vktest {
namespace {

using vk::BoxAnswer;
using vk::BoxButtons;
using vk::BoxIcon;

/// Acts on the message box that is about to open.
void whenBoxOpens(std::function<void(QMessageBox&)> action) {
  QTimer::singleShot(0, qApp, [action] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    action(*box);
  });
}

TEST(QtDesktop, EveryWayOutOfABoxHasItsAnswer) {
  vk::clsQtDesktop desk;
  const auto press = [](QMessageBox::StandardButton which) {
    return [which](QMessageBox& box) { box.button(which)->click(); };
  };
  const auto close = [](QMessageBox& box) { box.close(); };
  const auto escape = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
  const auto enter = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
  struct Row {
    const char* name;
    BoxButtons buttons;
    std::function<void(QMessageBox&)> action;
    BoxAnswer answer;
    BoxIcon icon = BoxIcon::kExclamation;
  };
  const Row rows[] = {
      {"ok", BoxButtons::kOk, press(QMessageBox::Ok), BoxAnswer::kOk},
      {"ok closed", BoxButtons::kOk, close, BoxAnswer::kOk},
      {"ok-cancel ok", BoxButtons::kOkCancel, press(QMessageBox::Ok), BoxAnswer::kOk},
      {"ok-cancel cancel", BoxButtons::kOkCancel, press(QMessageBox::Cancel), BoxAnswer::kCancel},
      {"ok-cancel closed", BoxButtons::kOkCancel, close, BoxAnswer::kCancel},
      {"ok-cancel escape", BoxButtons::kOkCancel, escape, BoxAnswer::kCancel},
      {"ok-cancel enter", BoxButtons::kOkCancel, enter, BoxAnswer::kOk},
      {"no way back", BoxButtons::kOkCancel, enter, BoxAnswer::kCancel, BoxIcon::kQuestion},
      {"yes", BoxButtons::kYesNo, press(QMessageBox::Yes), BoxAnswer::kYes},
      {"no", BoxButtons::kYesNo, press(QMessageBox::No), BoxAnswer::kNo},
      {"yes-no closed", BoxButtons::kYesNo, close, BoxAnswer::kClosed},
      {"yes-no escape", BoxButtons::kYesNo, escape, BoxAnswer::kClosed}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    whenBoxOpens(row.action);
    EXPECT_EQ(desk.messageBox("File Process", "text", row.buttons, row.icon), row.answer);
  }
}

TEST(QtDesktop, ABoxShowsItsTextAsItStands) {
  vk::clsQtDesktop desk;
  const auto pointer = [] { return QGuiApplication::overrideCursor()->shape(); };
  desk.setHourglass(true);
  whenBoxOpens([&](QMessageBox& box) {
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
    EXPECT_EQ(box.windowTitle(), "USB Error");
    EXPECT_EQ(box.text(), "<b>1 & 2</b>");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    // Plain text stays as wide as its characters; as markup it would lose them.
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    box.close();
  });
  std::ignore =
      desk.messageBox("USB Error", "<b>1 & 2</b>", BoxButtons::kOk, BoxIcon::kExclamation);
  EXPECT_EQ(pointer(), Qt::WaitCursor);
  desk.setHourglass(false);
}

TEST(QtDesktop, AFileDialogTakesAnyNameAndAsksNothing) {
  vk::clsQtDesktop desk;
  const QTemporaryDir folder;
  QFile(folder.filePath("in.set")).open(QIODevice::WriteOnly);
  const auto typed = [&](vk::FileDialogKind kind, const char* name) {
    QTimer::singleShot(0, qApp, [name] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->nameFilters().constFirst(), "Setting File (*.set) (*.set *.SET)");
      auto* field = control<QLineEdit>(*dialog, "fileNameEdit");
      QTest::keyClicks(field, name);
      auto* buttons = control<QDialogButtonBox>(*dialog, "buttonBox");
      EXPECT_TRUE(buttons->buttons().constFirst()->isEnabled());
      QTimer::singleShot(0, qApp, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box) box->reject();  // the toolkit's own box: the dialog then stays
      });
      QTest::keyClick(field, Qt::Key_Return);
      EXPECT_FALSE(dialog->isVisible());
      if (dialog->isVisible()) dialog->reject();
    });
    const std::string path = desk.fileDialog(kind, "Read File", "Setting File (*.set)|*.set|",
                                             folder.path().toStdString());
    return vk::fromQt(QDir(folder.path()).relativeFilePath(vk::toQt(path)));
  };
  for (const auto kind : {vk::FileDialogKind::kOpen, vk::FileDialogKind::kSave})
    for (const char* name : {"in", "in.set", "none"}) EXPECT_EQ(typed(kind, name), name);
}

TEST(StatusBar, HasASecondLineWhenThereIsOne) {
  vk::frmStatusBar window("CSV");
  for (const char* second : {"", "A.dat"}) {
    window.setLines("1 of 2", second);
    window.show();
    const auto* line = control<QLabel>(window, "lblSub2");
    EXPECT_EQ(line->isVisible() ? line->text() : QString(), second);
  }
}

TEST(FieldGuard, AFieldOutOfReachIsNotChecked) {
  int complaints = 0;
  vk::clsFieldGuard guard([&] { ++complaints; }, [] {});
  QLineEdit field("x");
  guard.watch(field, [](const std::string&) { return false; });
  for (const bool within : {false, true}) {
    field.setEnabled(within);
    EXPECT_EQ(guard.checkAll(), !within);
    EXPECT_EQ(complaints, within ? 1 : 0);
  }
}

TEST(QtDesktop, WaitingEndsWithTheTimeOrAnEvent) {
  vk::clsQtDesktop desk;
  const int64_t start = desk.milliseconds();
  for (int i = 0; i < 200 && desk.milliseconds() - start < 20; ++i) desk.waitEvents(20);
  EXPECT_GE(desk.milliseconds() - start, 20);
  bool called = false;
  QTimer::singleShot(0, qApp, [&called] { called = true; });
  while (!called) desk.waitEvents(-1);
  EXPECT_TRUE(called);
}

TEST(QtDesktop, TheOutermostRoundDeliversDeferredDeletes) {
  vk::clsQtDesktop desk;
  QPointer<QObject> object = new QObject;
  bool aliveInside = false;
  QTimer::singleShot(0, qApp, [&] {
    object->deleteLater();
    desk.doEvents();
    aliveInside = !object.isNull();
  });
  desk.waitEvents(50);
  desk.doEvents();
  EXPECT_TRUE(aliveInside);
  EXPECT_TRUE(object.isNull());
}

}  // namespace
}  // namespace vktest
