// SPDX-License-Identifier: MIT
#include "desktop/clsElidedLabel.h"

#include <QPainter>

namespace vk {

namespace {
constexpr double kLeastRatio = 0.78;
}

void clsElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect area = contentsRect();
  // Letters a little smaller are better than letters missing, and the blanks at the ends of some
  // texts need no room.
  const QString words = text().trimmed();
  QFont fitted = font();
  const int wanted = fontMetrics().horizontalAdvance(words);
  if (wanted > area.width()) {
    const double ratio = qMax(kLeastRatio, double(area.width()) / wanted);
    fitted.setPointSizeF(fitted.pointSizeF() * ratio);
    painter.setFont(fitted);
  }
  const QString shown = QFontMetrics(fitted).elidedText(words, Qt::ElideRight, area.width());
  setToolTip(shown == words ? QString() : text());
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(area, static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
}

}  // namespace vk
