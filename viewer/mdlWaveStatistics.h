// SPDX-License-Identifier: MIT
// Extremes and sums over interleaved samples at the speed of memory: one pass, several samples at
// once, no copy of the samples.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vk {

/// The statistics of all channels of a file over one column, gathered in pieces. A frame is one
/// 16-bit little-endian word per channel; frames need no alignment.
class ColumnStatistics {
 public:
  explicit ColumnStatistics(int32_t channels);

  /// Forgets everything.
  void begin();
  void add(const unsigned char* frames, std::size_t count);

  std::size_t count() const { return count_; }
  // Of a channel, from 0; with at least one frame.
  int16_t first(int32_t channel) const;
  int16_t last(int32_t channel) const;
  int16_t max(int32_t channel) const;
  int16_t min(int32_t channel) const;
  /// Frame, from 0, of the first sample with that value. A column of nothing but -32768 has its
  /// maximum at 0, as one of nothing but 32767 its minimum.
  int64_t maxAt(int32_t channel) const;
  int64_t minAt(int32_t channel) const;
  int64_t sum(int32_t channel) const;

 private:
  // to be filled in
  std::size_t count_ = 0;
};

}  // namespace vk
