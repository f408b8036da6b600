// SPDX-License-Identifier: MIT
// A surface to draw on, in pixels. Colours are 0x00BBGGRR. The screen, the printer and, in tests,
// a recording stand behind it.
#pragma once

#include <cstdint>
#include <string>

namespace vk {

using Colour = int32_t;  // 0x00BBGGRR

class clsPicture {
 public:
  virtual ~clsPicture() = default;

  virtual int width() const = 0;
  virtual int height() const = 0;
  virtual void clear(Colour background) = 0;
  /// Both corners belong to the box.
  virtual void filledBox(int x1, int y1, int x2, int y2, Colour colour) = 0;
  /// Inverted drawing: every covered pixel is combined with the colour by exclusive or with the
  /// complement of the colour, so that text under a bar stays readable.
  virtual void invertedBox(int x1, int y1, int x2, int y2, Colour colour) = 0;
  /// The text's top left corner.
  virtual void text(int x, int y, const std::string& text, Colour colour) = 0;
  virtual int textWidth(const std::string& text) const = 0;
  virtual int textHeight(const std::string& text) const = 0;
  /// Shows what was drawn.
  virtual void refresh() = 0;
};

}  // namespace vk
