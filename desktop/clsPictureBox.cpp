// SPDX-License-Identifier: MIT
#include "desktop/clsPictureBox.h"

#include <QPainter>
#include <QResizeEvent>

#include "desktop/qtText.h"

namespace vk {

QColor toQColor(Colour colour) {
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

clsPictureBox::clsPictureBox(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  fitImage();
}

void clsPictureBox::fitImage() {
  const qreal ratio = devicePixelRatioF();
  const QSize wanted = QSize(qMax(1, width()), qMax(1, height())) * ratio;
  if (image_.size() == wanted) return;
  QImage larger(wanted, QImage::Format_RGB32);
  larger.setDevicePixelRatio(ratio);
  larger.fill(Qt::white);
  if (!image_.isNull()) QPainter(&larger).drawImage(0, 0, image_);
  image_ = larger;
}

void clsPictureBox::clear(Colour background) {
  fitImage();
  image_.fill(toQColor(background));
}

void clsPictureBox::filledBox(int x1, int y1, int x2, int y2, Colour colour) {
  QPainter(&image_).fillRect(QRect(QPoint(x1, y1), QPoint(x2, y2)), toQColor(colour));
}

void clsPictureBox::invertedBox(int x1, int y1, int x2, int y2, Colour colour) {
  QPainter painter(&image_);
  painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
  painter.fillRect(QRect(QPoint(x1, y1), QPoint(x2, y2)), toQColor(~colour & 0xFFFFFF));
}

void clsPictureBox::text(int x, int y, const std::string& text, Colour colour) {
  QPainter painter(&image_);
  painter.setFont(font());
  painter.setPen(toQColor(colour));
  painter.drawText(x, y + QFontMetrics(font()).ascent(), toQt(text));
}

int clsPictureBox::textWidth(const std::string& text) const {
  return QFontMetrics(font()).horizontalAdvance(toQt(text));
}

int clsPictureBox::textHeight(const std::string&) const {
  return QFontMetrics(font()).height();
}

void clsPictureBox::refresh() {
  update();
}

void clsPictureBox::paintEvent(QPaintEvent*) {
  QPainter(this).drawImage(0, 0, image_);
}

void clsPictureBox::resizeEvent(QResizeEvent*) {
  fitImage();
}

}  // namespace vk
