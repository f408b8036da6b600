// SPDX-License-Identifier: MIT
// What a kind of monitor is to all that goes over every kind: how many records it has, what these
// have in common, and their keys in the configuration file. Colours are 0x00BBGGRR, window geometry
// is in twips, a serial of kNoSerial means that no box is assigned. Indices count from 0.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "base/clsCanvas.h"
#include "recorder/mdlMeasureSetting.h"

namespace vk {

/// Monitors of one kind, and channels of one monitor, are never more.
inline constexpr std::size_t kMostMonitors = 32;
inline constexpr std::size_t kMostChannels = 4;

// Defaults that several kinds have.
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

/// Where a value lives; its type decides how it is written and read.
using ValueSlot = std::variant<bool*, int32_t*, float*, std::string*>;

/// The file has a group of one kind after the other, then the next group. A kind that came later
/// keeps all its keys together behind those of the earlier ones.
enum class KeyGroup { kColours, kSettings, kCaptions, kPlaces, kLater };

struct MonitorKey {
  std::string_view name;
  KeyGroup group;
  ValueSlot (*slot)(std::size_t record);
};

/// The slot of a key: a field of each record, or an element of an array in it.
template <auto& Records, auto Field>
ValueSlot fieldOf(std::size_t record) {
  return &(Records[record].*Field);
}
template <auto& Records, auto Field, std::size_t Element>
ValueSlot elementOf(std::size_t record) {
  return &(Records[record].*Field)[Element];
}

struct MonitorRow {
  std::size_t count;
  MonitorFields (*fields)(std::size_t index);
  void (*reset)();  ///< every record to its defaults
  std::span<const MonitorKey> keys;
};

}  // namespace vk
