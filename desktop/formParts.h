// SPDX-License-Identifier: MIT
// Two small helpers that forms share in building themselves.
#pragma once

#include <QLabel>
#include <QWidget>
#include <initializer_list>

namespace vk {

/// A caption whose mnemonic goes to the control beside it.
inline QLabel* captionOf(const QString& text, QWidget* buddy, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setBuddy(buddy);
  return label;
}

/// The Tab key goes through the controls in this order.
inline void tabThrough(std::initializer_list<QWidget*> controls) {
  QWidget* before = nullptr;
  for (auto* control : controls) {
    if (before) QWidget::setTabOrder(before, control);
    before = control;
  }
}

}  // namespace vk
