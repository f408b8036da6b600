// SPDX-License-Identifier: MIT
// The program's own icons, drawn at any size and in the palette's colours, so that they stay crisp
// at every scaling and readable in light and dark.
#pragma once

#include <QIcon>

namespace vk {

enum class UiIcon {
  kOpenData,
  kCsv,
  kReadUsb,
  kMeasure,
  kMonitor,
  kBalance,
  kCal,
  kCheck,
  kList,
  kCardInit,
  kReconnect,
  kStart,
  kStop,
  kTrigger,
  kProgram
};

QIcon uiIcon(UiIcon icon);
/// A round lamp of the colour, for the state of a box.
QPixmap lampPixmap(const QColor& colour, int size, qreal ratio);

}  // namespace vk
