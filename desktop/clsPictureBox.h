// SPDX-License-Identifier: MIT
// The picture seam on an image, shown by a widget. Drawing goes to the image, which has a whole
// number of dots to a pixel, at least as many as the screen; refresh() asks for a repaint.
#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cstdint>

#include "base/clsSurface.h"

namespace vk {

QColor toQColor(Colour colour);
Colour fromQColor(const QColor& colour);

class clsPictureBox : public QWidget, public clsSurface {
  Q_OBJECT

 public:
  explicit clsPictureBox(QWidget* parent = nullptr);

  /// Oblique lines, circles and arcs with smooth edges; for dials, not for traces, whose columns
  /// are drawn one by one.
  void setSmooth(bool smooth) { smooth_ = smooth; }

  int width() const override { return QWidget::width(); }
  int height() const override { return QWidget::height(); }
  void clear(Colour background) override;
  void setLineStyle(LineStyle style) override { style_ = style; }
  void setLineWidth(int pixels) override { lineWidth_ = std::max(1, pixels); }
  void line(int x1, int y1, int x2, int y2, Colour colour) override;
  void point(int x, int y, Colour colour) override;
  void circle(int x, int y, int radius, Colour colour) override;
  void arc(int x, int y, int radius, int fromDegrees, int toDegrees, Colour colour) override;
  void disc(int x, int y, int radius, Colour colour) override;
  void box(int x1, int y1, int x2, int y2, Colour colour) override;
  void filledBox(int x1, int y1, int x2, int y2, Colour colour) override;
  void invertedBox(int x1, int y1, int x2, int y2, Colour colour) override;
  int fontSize() const override;
  void setFontSize(int points) override;
  void text(int x, int y, const std::string& text, Colour colour) override;
  int textWidth(const std::string& text) const override;
  int textHeight(const std::string& text) const override;
  void copy(const clsSurface& from, int x, int y, int width, int height, int fromX,
            int fromY) override;
  void refresh() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitImage() const;
  int ratio();
  QPainter& painter();
  void fillPixels(int x1, int y1, int x2, int y2, Colour colour);
  void stepLine(int x1, int y1, int x2, int y2, Colour colour);
  /// In dots.
  void fillDots(int64_t left, int64_t top, int64_t columns, int64_t rows, QRgb dots);
  void strokeWith(Colour colour);

  // These follow the size and the screen of the widget whenever they are used.
  mutable QImage image_;
  mutable QPainter painter_;  ///< open from the first stroke to the next refresh
  mutable int ratio_ = 1;     ///< dots to a pixel
  LineStyle style_ = LineStyle::kSolid;
  int lineWidth_ = 1;
  bool smooth_ = false;
};

}  // namespace vk
