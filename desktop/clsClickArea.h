// SPDX-License-Identifier: MIT
// A bare area that tells of every click on it.
#pragma once

#include <QWidget>
#include <functional>

namespace vk {

class clsClickArea : public QWidget {
 public:
  using QWidget::QWidget;
  std::function<void()> onClick;

 protected:
  void mousePressEvent(QMouseEvent*) override {
    if (onClick) onClick();
  }
  // A double click arrives instead of the second press.
  void mouseDoubleClickEvent(QMouseEvent*) override {
    if (onClick) onClick();
  }
};

}  // namespace vk
