// SPDX-License-Identifier: MIT
// The picture seam on an image, shown by a widget. Drawing goes to the image at the screen's own
// resolution; refresh() asks for a repaint.
#pragma once

#include <QImage>
#include <QWidget>

#include "base/clsPicture.h"

namespace vk {

QColor toQColor(Colour colour);

class clsPictureBox : public QWidget, public clsPicture {
  Q_OBJECT

 public:
  explicit clsPictureBox(QWidget* parent = nullptr);

  int width() const override { return QWidget::width(); }
  int height() const override { return QWidget::height(); }
  void clear(Colour background) override;
  void filledBox(int x1, int y1, int x2, int y2, Colour colour) override;
  void invertedBox(int x1, int y1, int x2, int y2, Colour colour) override;
  void text(int x, int y, const std::string& text, Colour colour) override;
  int textWidth(const std::string& text) const override;
  int textHeight(const std::string& text) const override;
  void refresh() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitImage();
  QImage image_;
};

}  // namespace vk
