// SPDX-License-Identifier: MIT
// What a new viewer window is to show. The caller fills the one global record just before the
// window is made, and the window copies it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace vk {

inline constexpr std::size_t kMaxWaveFiles = 128;

struct WaveOpenRequest {
  std::array<std::string, kMaxWaveFiles>
      fileName;  ///< paths without extension, up to the first empty
  std::array<std::string, kMaxWaveFiles> channelList;  ///< 1-based channels in the file, "1,3,4"
  std::array<int32_t, kMaxWaveFiles> seriesInFile{};   ///< the file's own count, its row width
  int32_t firstDataNumber = 0;                         ///< 1-based
  int32_t lastDataNumber = 0;                          ///< 1-based, inclusive
  int32_t rate = 0;                                    ///< samples per second
  std::string startStamp;                              ///< DATE, a comma, TIME of the first file
  bool operator==(const WaveOpenRequest&) const = default;
};

extern WaveOpenRequest waveOpenRequest;
/// 1 when the card window has filled the request and the main window is to open a viewer on it.
extern int16_t waveRequestSet;
/// Empties the request and lowers the flag.
void resetWaveOpenRequest();

}  // namespace vk
