// SPDX-License-Identifier: MIT
// A canvas that keeps its pixels, so that blocks of them can be moved, inverted and shown again:
// what scrolls, and what is put together out of sight.
#pragma once

#include "base/clsCanvas.h"

namespace vk {

class clsSurface : public clsCanvas {
 public:
  /// Every covered pixel is combined with the colour by exclusive or with the complement of the
  /// colour, so that text under a bar stays readable.
  virtual void invertedBox(int x1, int y1, int x2, int y2, Colour colour) = 0;
  /// Copies the block at (fromX, fromY) of a surface of the same kind, or of this one, to (x, y).
  virtual void copy(const clsSurface& from, int x, int y, int width, int height, int fromX,
                    int fromY) = 0;
  /// Shows what was drawn.
  virtual void refresh() = 0;
};

}  // namespace vk
