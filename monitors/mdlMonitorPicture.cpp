// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorPicture.h"

#include <cmath>

#include "monitors/mdlMonitorRow.h"

namespace vk {

namespace {

int32_t division(int32_t length, int i) {
  return toRow(length / double{kDivisions} * i);
}

void levelPairs(clsCanvas& picture, int32_t centerY, int32_t height, Colour colour) {
  const int width = picture.width();
  for (int i = 1; i <= kGridLines; ++i) {
    const int32_t d = division(height, i);
    picture.line(0, centerY - d, width, centerY - d, colour);
    picture.line(0, centerY + d, width, centerY + d, colour);
  }
}

}  // namespace

float pixelsPerUnit(int32_t extent, float full) {
  const float scale = (extent - kFramePixels) / (full * kDivisions);
  return std::isfinite(scale) ? scale : 0;
}

float groundLevel(float full, int32_t halfDivisions) {
  return full * halfDivisions / 2;
}

int32_t groundShift(float full, int32_t halfDivisions, float scale) {
  return toShift(groundLevel(full, halfDivisions) * scale);
}

ValueAxis upwardAxis(int32_t centre, int64_t shift, float scale) {
  return rightwardAxis(centre, shift, -scale);
}

ValueAxis rightwardAxis(int32_t centre, int64_t shift, float scale) {
  return {0, static_cast<float>(centre + shift), scale};
}

void drawDivisions(clsCanvas& picture, int32_t centerX, int32_t centerY, Colour colour) {
  const int height = picture.height();
  picture.setLineStyle(LineStyle::kDotted);
  for (int i = 1; i <= kGridLines; ++i) {
    const int32_t d = division(picture.width(), i);
    picture.line(centerX - d, 0, centerX - d, height, colour);
    picture.line(centerX + d, 0, centerX + d, height, colour);
  }
  levelPairs(picture, centerY, height, colour);
  picture.setLineStyle(LineStyle::kSolid);
}

void drawCentre(clsCanvas& picture, int32_t centerX, int32_t centerY, Colour colour) {
  picture.setLineStyle(LineStyle::kDotted);
  picture.line(0, centerY, picture.width(), centerY, colour);
  picture.line(centerX, 0, centerX, picture.height(), colour);
  picture.setLineStyle(LineStyle::kSolid);
}

void drawLevels(clsCanvas& picture, int32_t centerY, int32_t height, Colour colour) {
  picture.setLineStyle(LineStyle::kDotted);
  picture.line(0, centerY, picture.width(), centerY, colour);
  levelPairs(picture, centerY, height, colour);
  picture.setLineStyle(LineStyle::kSolid);
}

ExtremeMark markAt(float row, int32_t height, Colour colour) {
  if (row < 0) return {0, kYellow};
  if (row > height - 1) return {height - 1, kYellow};
  return {toRow(row), colour};
}

}  // namespace vk
