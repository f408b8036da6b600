// SPDX-License-Identifier: MIT
// A bar whose contents have fixed places: on a screen too narrow for them it scrolls sideways.
#pragma once

#include <QScrollArea>

namespace vk {

class clsBarScroller : public QScrollArea {
  Q_OBJECT

 public:
  explicit clsBarScroller(QWidget* parent = nullptr);
  /// The contents; they keep this size.
  QWidget* bar() const { return widget(); }
  void setBarSize(const QSize& size);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitHeight();
};

}  // namespace vk
