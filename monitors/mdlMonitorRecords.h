// SPDX-License-Identifier: MIT
// The records of the live monitors: which are open, what they show and how. Fields have the names
// of their configuration keys. Colours are 0x00BBGGRR, window geometry is in twips, a serial of
// kNoSerial means that no box is assigned. Indices count from 0.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "base/clsCanvas.h"
#include "recorder/mdlMeasureSetting.h"

namespace vk {

inline constexpr std::size_t kNumMonitors = 32;
inline constexpr std::size_t kWaveMonitors = 8;
inline constexpr std::size_t kXYMonitors = 4;
inline constexpr std::size_t kBarMonitors = 4;
inline constexpr std::size_t kCircleMonitors = 8;
/// Axes of an X-Y monitor, Y first, and bars of a bar monitor.
inline constexpr std::size_t kXYAxes = 2;
inline constexpr std::size_t kBars = 4;

inline constexpr float kUpperLimit = 999999.0F;
inline constexpr float kLowerLimit = -999999.0F;
inline constexpr Colour kDarkGrey = 0x2F2F2F;
inline constexpr Colour kAbnormalGrey = 0x404040;
inline constexpr Colour kGridGrey = 0x4F4F4F;
inline constexpr Colour kGroundGrey = 0x8F8F8F;
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kRed = 255;
inline constexpr Colour kYellow = 65535;

/// An array with the same value in each element.
template <typename T, std::size_t N>
constexpr std::array<T, N> filled(T value) {
  std::array<T, N> items{};
  items.fill(value);
  return items;
}

struct NumMonitorRec {
  bool NUM_ONOFF = false;
  std::string NUM_CAPTION;
  int32_t NUM_SER = kNoSerial;
  int32_t NUM_CH = 1;
  Colour NUM_FORE = kWhite;
  Colour NUM_BACK = kDarkGrey;
  Colour NUM_C_FORE = kWhite;
  Colour NUM_C_BACK = kAbnormalGrey;
  bool NUM_CVAL_ONOFF = false;
  float NUM_CVAL_UP = kUpperLimit;
  float NUM_CVAL_DOWN = kLowerLimit;
  int32_t NUM_TOP = 0;
  int32_t NUM_LEFT = 0;
  int32_t NUM_HEIGHT = 2500;
  int32_t NUM_WIDTH = 6000;
  float NUM_SPEED = 0;    ///< samples per shown value, less one
  int32_t NUM_POINT = 0;  ///< index into the decimal formats
  bool operator==(const NumMonitorRec&) const = default;
};

struct WaveMonitorRec {
  bool WAV_ONOFF = false;
  std::string WAV_CAPTION;
  int32_t WAV_SER = kNoSerial;
  int32_t WAV_CH = 1;
  float WAV_FULL = 1000.0F;  ///< units per division
  int32_t WAV_OFFSET = 0;    ///< -10 to 10, half divisions
  float WAV_SPEED = 0;       ///< index of the X scale
  bool WAV_CUP_ON = false;
  float WAV_CUP_VALUE = 0;
  Colour WAV_FORE = kRed;
  Colour WAV_BACK = kDarkGrey;
  Colour WAV_C_FORE = kRed;
  Colour WAV_C_BACK = kAbnormalGrey;
  Colour WAV_GND = kGroundGrey;
  Colour WAV_GRID = kGridGrey;
  bool WAV_CVAL_ONOFF = false;
  float WAV_CVAL_UP = kUpperLimit;
  float WAV_CVALDOWN = kLowerLimit;
  int32_t WAV_TOP = 0;
  int32_t WAV_LEFT = 0;
  int32_t WAV_HEIGHT = 2500;
  int32_t WAV_WIDTH = 6800;
  bool operator==(const WaveMonitorRec&) const = default;
};

/// The second element of a pair is the X axis; its keys have "SUB" in their names.
struct XYMonitorRec {
  bool XY_ONOFF = false;
  std::string XY_CAPTION;
  std::array<int32_t, kXYAxes> XY_SER = filled<int32_t, kXYAxes>(kNoSerial);
  std::array<int32_t, kXYAxes> XY_CH = filled<int32_t, kXYAxes>(1);
  std::array<float, kXYAxes> XY_FULL = filled<float, kXYAxes>(1000.0F);
  std::array<int32_t, kXYAxes> XY_OFFSET{};
  float XY_SPEED = 0;
  Colour XY_FORE = kRed;
  Colour XY_BACK = kDarkGrey;
  Colour XY_POINT = kYellow;
  Colour XY_C_FORE = kRed;
  Colour XY_C_BACK = kAbnormalGrey;
  Colour XY_C_POINT = kYellow;
  Colour XY_GND = kGroundGrey;
  Colour XY_GRID = kGridGrey;
  bool XY_CVAL_ONOFF = false;
  std::array<float, kXYAxes> XY_CVAL_UP = filled<float, kXYAxes>(kUpperLimit);
  std::array<float, kXYAxes> XY_CVALDOWN = filled<float, kXYAxes>(kLowerLimit);
  int32_t XY_TOP = 0;
  int32_t XY_LEFT = 0;
  int32_t XY_HEIGHT = 3300;
  int32_t XY_WIDTH = 5300;
  bool operator==(const XYMonitorRec&) const = default;
};

/// The arrays have one element for each bar; their keys have 1ST to 4TH in their names.
struct BarMonitorRec {
  bool BAR_ONOFF = false;
  std::string BAR_CAPTION;
  float BAR_SPEED = 0;
  int32_t BAR_TOP = 0;
  int32_t BAR_LEFT = 0;
  int32_t BAR_HEIGHT = 3500;
  int32_t BAR_WIDTH = 6800;
  Colour BAR_GND = kGroundGrey;
  Colour BAR_GRID = kGridGrey;
  Colour BAR_BACK = kDarkGrey;
  Colour BAR_C_BACK = kAbnormalGrey;
  std::array<int32_t, kBars> BAR_SER = filled<int32_t, kBars>(kNoSerial);
  std::array<int32_t, kBars> BAR_CH = filled<int32_t, kBars>(1);
  std::array<float, kBars> BAR_FULL = filled<float, kBars>(1000.0F);
  std::array<int32_t, kBars> BAR_OFFSET{};
  std::array<bool, kBars> BAR_CVAL_ONOFF{};
  std::array<Colour, kBars> BAR_FORE = filled<Colour, kBars>(kRed);
  std::array<Colour, kBars> BAR_CFORE = filled<Colour, kBars>(kRed);
  std::array<float, kBars> BAR_CVAL_UP = filled<float, kBars>(kUpperLimit);
  std::array<float, kBars> BAR_CVAL_DOWN = filled<float, kBars>(kLowerLimit);
  bool operator==(const BarMonitorRec&) const = default;
};

struct CircleMonitorRec {
  bool CRL_ONOFF = false;
  std::string CRL_CAPTION;
  int32_t CRL_SER = kNoSerial;
  int32_t CRL_CH = 1;
  float CRL_FULL = 1000.0F;  ///< value at the end of the dial
  int32_t CRL_OFFSET = 0;    ///< value at its start
  float CRL_SPEED = 0;
  Colour CRL_FORE = kRed;
  Colour CRL_BACK = kDarkGrey;
  Colour CRL_C_FORE = kRed;
  Colour CRL_C_BACK = kAbnormalGrey;
  Colour CRL_GND = kGroundGrey;
  Colour CRL_GRID = kGridGrey;
  bool CRL_CVAL_ONOFF = false;
  float CRL_CVAL_UP = kUpperLimit;
  float CRL_CVAL_DOWN = kLowerLimit;
  int32_t CRL_TOP = 0;
  int32_t CRL_LEFT = 0;
  int32_t CRL_HEIGHT = 2600;
  int32_t CRL_WIDTH = 4200;
  bool operator==(const CircleMonitorRec&) const = default;
};

extern std::array<NumMonitorRec, kNumMonitors> gNumMoni;
extern std::array<WaveMonitorRec, kWaveMonitors> gWaveMoni;
extern std::array<XYMonitorRec, kXYMonitors> gXYMoni;
extern std::array<BarMonitorRec, kBarMonitors> gBarMoni;
extern std::array<CircleMonitorRec, kCircleMonitors> gCircleMoni;

enum class MonitorKind { kNumerical, kWave, kXY, kBar, kCircle };

/// In the order in which everything that goes over all monitors takes them.
inline constexpr std::array kMonitorKinds{MonitorKind::kNumerical, MonitorKind::kWave,
                                          MonitorKind::kXY, MonitorKind::kBar,
                                          MonitorKind::kCircle};
inline constexpr std::size_t monitorCount(MonitorKind kind) {
  constexpr std::array kCounts{kNumMonitors, kWaveMonitors, kXYMonitors, kBarMonitors,
                               kCircleMonitors};
  return kCounts[static_cast<std::size_t>(kind)];
}

/// What the records of all kinds have in common, the record itself being changed through it.
struct MonitorFields {
  bool& on;
  std::string& caption;
  int32_t& top;
  int32_t& left;
  int32_t& height;
  int32_t& width;
  std::span<int32_t> serial;   ///< one element for each channel that the monitor shows
  std::span<int32_t> channel;  ///< as many; 1 to 4 unless a file holds nonsense
};
MonitorFields monitorFields(MonitorKind kind, std::size_t index);

/// Every record to its defaults.
void resetMonitorRecords();

}  // namespace vk
