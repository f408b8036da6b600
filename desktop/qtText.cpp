// SPDX-License-Identifier: MIT
#include "desktop/qtText.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringDecoder>

namespace vk {

QString toQt(std::string_view text) {
  const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
  QStringDecoder decoder(QStringDecoder::Utf8);
  QString result = decoder.decode(bytes);
  return decoder.hasError() ? QString::fromLatin1(bytes) : result;
}

std::string fromQt(const QString& text) {
  return text.toStdString();
}

QString elementName(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
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
