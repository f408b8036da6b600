// SPDX-License-Identifier: MIT
// A list that the wheel turns only once it has the focus: on the way over a form the wheel must not
// change a choice by accident.
#pragma once

#include <QComboBox>
#include <QWheelEvent>

namespace vk {

class clsQuietList : public QComboBox {
 public:
  explicit clsQuietList(QWidget* parent = nullptr) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) return QComboBox::wheelEvent(event);
    event->ignore();
  }
};

}  // namespace vk
