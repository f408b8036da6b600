// SPDX-License-Identifier: MIT
#include "desktop/clsPictureBox.h"

#include <QPaintEvent>
#include <algorithm>
#include <cstring>
#include <utility>

#include "desktop/qtText.h"

namespace vk {

namespace {

// One pixel and the gap behind it, of a dotted line.
constexpr int kDotPeriod = 3;

constexpr double kMiddle = 0.5;

/// numerator / denominator (> 0) to the nearest whole number, halves upward.
int64_t roundedPart(int64_t numerator, int64_t denominator) {
  const int64_t doubled = 2 * numerator + denominator;
  const int64_t whole = doubled / (2 * denominator);
  return doubled % (2 * denominator) < 0 ? whole - 1 : whole;
}

}  // namespace

QColor toQColor(Colour colour) {
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

Colour fromQColor(const QColor& colour) {
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

clsPictureBox::clsPictureBox(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  fitImage();
}

void clsPictureBox::fitImage() const {
  const int ratio = std::max(1, qCeil(devicePixelRatioF()));
  const QSize wanted = QSize(std::max(1, width()), std::max(1, height())) * ratio;
  if (image_.size() == wanted && ratio == ratio_) return;
  if (painter_.isActive()) painter_.end();
  QImage larger(wanted, QImage::Format_RGB32);
  larger.setDevicePixelRatio(ratio);
  larger.fill(Qt::white);
  if (!image_.isNull()) QPainter(&larger).drawImage(0, 0, image_);
  image_ = larger;
  ratio_ = ratio;
}

int clsPictureBox::ratio() {
  fitImage();
  return ratio_;
}

QPainter& clsPictureBox::painter() {
  if (!painter_.isActive()) {
    fitImage();
    painter_.begin(&image_);
  }
  return painter_;
}

void clsPictureBox::clear(Colour background) {
  fitImage();
  image_.fill(toQColor(background));
}

void clsPictureBox::strokeWith(Colour colour) {
  auto& stroke = painter();
  stroke.setRenderHint(QPainter::Antialiasing, smooth_);
  stroke.setBrush(Qt::NoBrush);
  stroke.setPen(QPen(toQColor(colour), lineWidth_,
                     style_ == LineStyle::kDotted ? Qt::DotLine : Qt::SolidLine, Qt::FlatCap));
}

void clsPictureBox::line(int x1, int y1, int x2, int y2, Colour colour) {
  if (!smooth_ || x1 == x2 || y1 == y2) return stepLine(x1, y1, x2, y2, colour);
  strokeWith(colour);
  // Pixels are counted at their corners, strokes run through their middles.
  painter_.drawLine(QPointF(x1 + kMiddle, y1 + kMiddle), QPointF(x2 + kMiddle, y2 + kMiddle));
}

// Walks along the longer axis. Qt's own lines leave out either end point, depending on direction,
// and dashing takes ten times as long. The rounding does not depend on the direction, so a line
// drawn back covers the line drawn forth.
void clsPictureBox::stepLine(int x1, int y1, int x2, int y2, Colour colour) {
  const bool across = std::abs(int64_t{x2} - x1) >= std::abs(int64_t{y2} - y1);
  const int64_t start = across ? x1 : y1;
  const int64_t end = across ? x2 : y2;
  const int64_t steps = std::abs(end - start) * ratio();
  if (steps == 0) return;
  const bool forward = end > start;
  const int64_t first = forward ? start * ratio_ : (start + 1) * ratio_ - 1;
  const int64_t limit = across ? image_.width() : image_.height();
  // Only the steps on the surface.
  const int64_t from = std::max<int64_t>(0, forward ? -first : first - limit + 1);
  const int64_t until = std::min(steps, forward ? limit - first : first + 1);
  const int64_t side = across ? y1 : x1;
  const int64_t rise = (across ? int64_t{y2} - y1 : int64_t{x2} - x1) * ratio_;
  const int64_t beside = (side - (lineWidth_ - 1) / 2) * ratio_;
  const auto put = [&](int64_t along, int64_t length, int64_t aside) {
    const int64_t wide = int64_t{lineWidth_} * ratio_;
    const QRgb dots = toQColor(colour).rgb();
    fillDots(across ? along : aside, across ? aside : along, across ? length : wide,
             across ? wide : length, dots);
  };
  if (rise == 0 && style_ == LineStyle::kSolid)
    return put(forward ? first + from : first - until + 1, until - from, beside);
  for (int64_t i = from; i < until; ++i) {
    if (style_ == LineStyle::kDotted && i / ratio_ % kDotPeriod != 0) continue;
    // Where the line is at the middle of the step, in half dots from the middle of its start.
    const int64_t shift = roundedPart(rise * (2 * i + 1 - ratio_), 2 * steps);
    put(forward ? first + i : first - i, 1, beside + shift);
  }
}

void clsPictureBox::fillDots(int64_t left, int64_t top, int64_t columns, int64_t rows, QRgb dots) {
  const auto lastColumn = std::min<int64_t>(left + columns, image_.width());
  const auto lastRow = std::min<int64_t>(top + rows, image_.height());
  const auto column = std::max<int64_t>(left, 0);
  if (column >= lastColumn) return;
  for (auto row = std::max<int64_t>(top, 0); row < lastRow; ++row) {
    auto* line = reinterpret_cast<QRgb*>(image_.scanLine(static_cast<int>(row)));
    std::fill(line + column, line + lastColumn, dots);
  }
}

void clsPictureBox::fillPixels(int x1, int y1, int x2, int y2, Colour colour) {
  const int64_t dots = ratio();
  const int64_t left = std::min(x1, x2);
  const int64_t top = std::min(y1, y2);
  fillDots(left * dots, top * dots, (std::max(x1, x2) - left + 1) * dots,
           (std::max(y1, y2) - top + 1) * dots, toQColor(colour).rgb());
}

void clsPictureBox::point(int x, int y, Colour colour) {
  fillPixels(x, y, x, y, colour);
}

void clsPictureBox::circle(int x, int y, int radius, Colour colour) {
  strokeWith(colour);
  painter_.drawEllipse(QPointF(x + kMiddle, y + kMiddle), radius, radius);
}

void clsPictureBox::arc(int x, int y, int radius, int fromDegrees, int toDegrees, Colour colour) {
  constexpr int kSixteenths = 16;
  constexpr int kFullTurn = 360;
  int span = (toDegrees - fromDegrees) % kFullTurn;
  if (span <= 0) span += kFullTurn;
  strokeWith(colour);
  painter_.drawArc(QRectF(x + kMiddle - radius, y + kMiddle - radius, 2.0 * radius, 2.0 * radius),
                   fromDegrees * kSixteenths, span * kSixteenths);
}

void clsPictureBox::disc(int x, int y, int radius, Colour colour) {
  auto& stroke = painter();
  stroke.setRenderHint(QPainter::Antialiasing, smooth_);
  stroke.setPen(Qt::NoPen);
  stroke.setBrush(toQColor(colour));
  stroke.drawEllipse(QPointF(x + kMiddle, y + kMiddle), radius, radius);
}

void clsPictureBox::box(int x1, int y1, int x2, int y2, Colour colour) {
  fillPixels(x1, y1, x2, y1, colour);
  fillPixels(x1, y2, x2, y2, colour);
  fillPixels(x1, y1, x1, y2, colour);
  fillPixels(x2, y1, x2, y2, colour);
}

void clsPictureBox::filledBox(int x1, int y1, int x2, int y2, Colour colour) {
  fillPixels(x1, y1, x2, y2, colour);
}

void clsPictureBox::invertedBox(int x1, int y1, int x2, int y2, Colour colour) {
  auto& stroke = painter();
  stroke.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
  stroke.fillRect(
      QRect(QPoint(std::min(x1, x2), std::min(y1, y2)), QPoint(std::max(x1, x2), std::max(y1, y2))),
      toQColor(~colour & 0xFFFFFF));
  stroke.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void clsPictureBox::setFontSize(int points) {
  QFont sized = font();
  sized.setPointSize(std::max(1, points));
  setFont(sized);
}

void clsPictureBox::text(int x, int y, const std::string& text, Colour colour) {
  auto& stroke = painter();
  stroke.setFont(font());
  stroke.setPen(toQColor(colour));
  stroke.drawText(x, y + fontMetrics().ascent(), toQt(text));
}

int clsPictureBox::fontSize() const {
  return std::max(1, QFontInfo(font()).pointSize());
}

int clsPictureBox::textWidth(const std::string& text) const {
  return fontMetrics().horizontalAdvance(toQt(text));
}

int clsPictureBox::textHeight(const std::string&) const {
  return fontMetrics().height();
}

void clsPictureBox::copy(const clsSurface& from, int x, int y, int width, int height, int fromX,
                         int fromY) {
  const auto& source = static_cast<const clsPictureBox&>(from);
  fitImage();
  // A move to a screen of another scaling may have reached only one of the two.
  source.fitImage();
  const QRect here(0, 0, image_.width() / ratio_, image_.height() / ratio_);
  const QRect there(0, 0, source.image_.width() / ratio_, source.image_.height() / ratio_);
  const QPoint shift(x - fromX, y - fromY);
  const QRect block =
      QRect(x, y, width, height).intersected(here).intersected(there.translated(shift));
  if (block.isEmpty() || source.ratio_ != ratio_) return;
  const auto bytes = static_cast<std::size_t>(block.width() * ratio_) * sizeof(QRgb);
  const int rows = block.height() * ratio_;
  const auto rowOffset = static_cast<std::ptrdiff_t>(block.left() * ratio_) *
                         static_cast<std::ptrdiff_t>(sizeof(QRgb));
  const auto sourceOffset = static_cast<std::ptrdiff_t>((block.left() - shift.x()) * ratio_) *
                            static_cast<std::ptrdiff_t>(sizeof(QRgb));
  uchar* target = image_.bits();
  const uchar* origin = source.image_.constBits();
  for (int i = 0; i < rows; ++i) {
    // Within one picture the rows that move down are taken from below.
    const int row = shift.y() > 0 ? rows - 1 - i : i;
    const std::ptrdiff_t to = block.top() * ratio_ + row;
    const std::ptrdiff_t at = (block.top() - shift.y()) * ratio_ + row;
    std::memmove(target + to * image_.bytesPerLine() + rowOffset,
                 origin + at * source.image_.bytesPerLine() + sourceOffset, bytes);
  }
}

void clsPictureBox::refresh() {
  if (painter_.isActive()) painter_.end();
  update();
}

void clsPictureBox::paintEvent(QPaintEvent* event) {
  if (painter_.isActive()) painter_.end();
  const QRect dirty = event->rect();
  QPainter screen(this);
  screen.drawImage(dirty, image_, QRect(dirty.topLeft() * ratio_, dirty.size() * ratio_));
}

void clsPictureBox::resizeEvent(QResizeEvent*) {
  fitImage();
}

}  // namespace vk
