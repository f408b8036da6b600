// SPDX-License-Identifier: MIT
// Ways to read and use the lists and boxes of the card's windows.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "base/mdlGeneral.h"
#include "desktop/qtText.h"
#include "tests/support/window_desktop.h"
#include "tests/support/window_tools.h"

namespace vktest {

/// Shown columns of all rows, "cell|cell", with "[x]" or "[ ]" in front where there is a check box.
inline std::string listText(const QTreeWidget& list, int columns) {
  std::string text;
  for (int row = 0; row < list.topLevelItemCount(); ++row) {
    const auto* item = list.topLevelItem(row);
    const QVariant check = item->data(0, Qt::CheckStateRole);
    if (check.isValid()) text += check.toInt() == Qt::Checked ? "[x]" : "[ ]";
    for (int column = 0; column < columns; ++column)
      text += (column ? "|" : "") + vk::fromQt(item->text(column));
    text += "\n";
  }
  return text;
}

inline void clickRow(QTreeWidget& list, int row) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.topLevelItem(row)).center());
}

inline void press(QWidget& form, const char* name) {
  control<QPushButton>(form, name)->click();
}

inline void type(QWidget& form, const char* box, const char* text) {
  control<QLineEdit>(form, box)->setText(QString::fromUtf8(text));
}

/// Types and ends by the Enter key.
inline void enter(QWidget& form, const char* box, const char* text) {
  type(form, box, text);
  QTest::keyClick(control<QLineEdit>(form, box), Qt::Key_Return);
}

template <typename Widget = QLineEdit>
std::string textIn(QWidget& form, const char* name) {
  return vk::fromQt(control<Widget>(form, name)->text());
}

}  // namespace vktest
