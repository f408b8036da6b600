// SPDX-License-Identifier: MIT
#include "desktop/qtText.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "base/mdlEncoding.h"

namespace vk {

QString toQt(std::string_view text) {
  const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
  return isUtf8(text) ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
}

std::string fromQt(const QString& text) {
  return text.toStdString();
}

QString elementName(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QFont fittingFont(const QFont& base, const QString& text, const QSize& room) {
  constexpr int kProbe = 100;
  QFont font = base;
  font.setPixelSize(kProbe);
  const QFontMetrics probe(font);
  const double share = std::min(room.width() / std::max(1.0, 1.0 * probe.horizontalAdvance(text)),
                                1.0 * room.height() / probe.height());
  int pixels = std::max(1, static_cast<int>(share * kProbe));
  const auto fits = [&] {
    font.setPixelSize(pixels);
    const QFontMetrics metrics(font);
    return metrics.horizontalAdvance(text) <= room.width() && metrics.height() <= room.height();
  };
  // Small letters are wider than their share of the large ones.
  while (!fits() && pixels > 1) --pixels;
  return font;
}

void centreOnScreen(QWidget& window) {
  window.adjustSize();
  const QScreen* screen = window.screen() ? window.screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  const QRect area = screen->availableGeometry();
  window.move(area.center() - QPoint(window.width() / 2, window.height() / 2));
}

void showNow(QWidget& widget) {
  widget.repaint();
}

}  // namespace vk
