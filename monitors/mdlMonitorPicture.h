// SPDX-License-Identifier: MIT
// What the pictures of several kinds of monitor have in common: scales and grid of ten divisions,
// and the marks of held extremes.
#pragma once

#include <cstdint>

#include "base/clsCanvas.h"
#include "base/mdlAxis.h"

namespace vk {

/// Colours of the held maximum and minimum; a mark whose value lies beyond the picture is yellow.
inline constexpr Colour kMaxColour = 0x8000FF;
inline constexpr Colour kMinColour = 0xFF8000;

inline constexpr int kDivisions = 10;
/// Pixels of a picture's extent that its scale leaves free.
inline constexpr int kFramePixels = 4;
/// Grid lines on each side of the centre; the fifth would be the edge.
inline constexpr int kGridLines = 4;

/// Pixels to a unit on an axis whose ten divisions of `full` units take the picture's extent less
/// its frame; 0 when the scale of the file is of no use.
float pixelsPerUnit(int32_t extent, float full);
/// The zero's way from the centre, for a slider at so many half divisions.
int32_t groundShift(float full, int32_t halfDivisions, float scale);
/// The same in units.
float groundLevel(float full, int32_t halfDivisions);

/// Live values come and are drawn in single precision.
using ValueAxis = Axis<float>;
/// The axis whose zero lies `shift` pixels from the centre; values grow upward, or to the right.
ValueAxis upwardAxis(int32_t centre, int64_t shift, float scale);
ValueAxis rightwardAxis(int32_t centre, int64_t shift, float scale);

/// Dotted lines at every division, upright ones and then level ones.
void drawDivisions(clsCanvas& picture, int32_t centerX, int32_t centerY, Colour colour);
/// Dotted lines through the centre.
void drawCentre(clsCanvas& picture, int32_t centerX, int32_t centerY, Colour colour);
/// A level line pair at each division of `height`, which may be less than the picture's.
void drawLevels(clsCanvas& picture, int32_t centerY, int32_t height, Colour colour);

/// Where and how the mark of an extreme is drawn: in its row, or in yellow at the edge beyond which
/// it lies.
struct ExtremeMark {
  int32_t row = 0;
  Colour colour = 0;
  bool operator==(const ExtremeMark&) const = default;
};
ExtremeMark markAt(float row, int32_t height, Colour colour);

}  // namespace vk
