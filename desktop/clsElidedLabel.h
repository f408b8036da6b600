// SPDX-License-Identifier: MIT
// A label for narrow places: a text that does not fit is cut with an ellipsis on the screen and
// stands whole in text() and in the tool tip.
#pragma once

#include <QLabel>

namespace vk {

class clsElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }
  QSize sizeHint() const override { return {0, QLabel::sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vk
