// SPDX-License-Identifier: MIT
// Where everything in the window of a wave monitor goes, for its size and font. Pixels.
#pragma once

#include "monitors/mdlMonitorPlace.h"

namespace vk {

/// Where everything in the window goes. A place without a size is for a control that finds no room.
struct WaveLayout {
  MonitorPlace picWave;
  MonitorPlace picMaxMin;
  MonitorPlace sdrYPos;
  MonitorPlace lblOffSet;
  MonitorPlace lblMonitor;
  MonitorPlace lblUnitNum;
  MonitorPlace lblSerNum;
  MonitorPlace lblChNum;
  MonitorPlace fraSet;
  MonitorPlace lblYScale;
  MonitorPlace lblXScale;
  int valueFont = 1;  ///< heights of the letters' boxes, in pixels
  int unitFont = 1;
  int scaleFont = 1;
};

/// What the controls need, which depends on font and style.
struct WaveRoom {
  int line = 1;         ///< height of a small label
  int serialWidth = 1;  ///< of "Ser: 0000000"
  int offsetWidth = 1;  ///< of the longest usual ground level
  int sliderWidth = 1;
  int frameWidth = 1;
  int frameHeight = 1;
};

WaveLayout waveLayout(int width, int height, const WaveRoom& room);

}  // namespace vk
