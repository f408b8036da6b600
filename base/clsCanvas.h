// SPDX-License-Identifier: MIT
// Something to draw on, in pixels, that keeps nothing of its own to be asked for: screen, printer
// and PDF alike. Positions outside it are clipped.
#pragma once

#include <cstdint>
#include <string>

namespace vk {

using Colour = int32_t;  // 0x00BBGGRR

enum class LineStyle { kSolid, kDotted };

class clsCanvas {
 public:
  virtual ~clsCanvas() = default;

  virtual int width() const = 0;
  virtual int height() const = 0;
  virtual void clear(Colour background) = 0;

  /// For line(), circle() and arc(), until set again; at first solid and 1 pixel wide.
  virtual void setLineStyle(LineStyle style) = 0;
  virtual void setLineWidth(int pixels) = 0;
  /// The end point itself is left out.
  virtual void line(int x1, int y1, int x2, int y2, Colour colour) = 0;
  virtual void point(int x, int y, Colour colour) = 0;
  virtual void circle(int x, int y, int radius, Colour colour) = 0;
  /// Part of a circle, counter-clockwise; 0 degrees points to the right, 90 up.
  virtual void arc(int x, int y, int radius, int fromDegrees, int toDegrees, Colour colour) = 0;
  /// A filled circle.
  virtual void disc(int x, int y, int radius, Colour colour) = 0;

  /// The outline, one pixel wide. Both corners belong to a box.
  virtual void box(int x1, int y1, int x2, int y2, Colour colour) = 0;
  virtual void filledBox(int x1, int y1, int x2, int y2, Colour colour) = 0;

  /// In points, at least 1.
  virtual int fontSize() const = 0;
  virtual void setFontSize(int points) = 0;
  /// The text's top left corner.
  virtual void text(int x, int y, const std::string& text, Colour colour) = 0;
  virtual int textWidth(const std::string& text) const = 0;
  virtual int textHeight(const std::string& text) const = 0;
};

}  // namespace vk
