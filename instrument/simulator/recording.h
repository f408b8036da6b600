// SPDX-License-Identifier: MIT
//
// One recording: what was sampled, from when on, and the two files it makes on a card. Its samples
// are never stored: they are a function of the sensor signals and the sample's moment, and since
// the signals repeat, a file of any length is served from one precomputed pattern.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "instrument/simulator/calendar.h"
#include "instrument/simulator/conditions.h"
#include "instrument/simulator/signals.h"

namespace vksim {

/// One channel's way from the sensor to the reading.
struct Input {
  Signal signal;
  double zero = 0;   ///< balanced away, in microstrain
  double shift = 0;  ///< calibration output, share of full scale
};

using Inputs = std::array<Input, kChannels>;

/// The reading of a channel, limited to a little over full scale. An open channel lies at the
/// limit.
[[nodiscard]] int readingAt(const Input& input, const ChannelConditions& channel, Micros at);

struct Recording {
  Conditions conditions;
  Inputs inputs;
  Micros start = 0;         ///< moment of the first sample
  std::int64_t frames = 0;  ///< samples per channel
  DateTime startDate;

  [[nodiscard]] std::int64_t dataBytes() const { return frames * conditions.channels * 2; }
};

/// What the header tells besides the recording itself.
struct HeaderOrigin {
  std::string stem;
  Model model = Model::kVK480Q;
  int serial = 0;
  std::array<std::string, kChannels> units;
  std::array<double, kChannels> coefficients{};
};

/// The text of the .HED file, lines ended by CR LF.
[[nodiscard]] std::string headerText(const Recording& recording, const HeaderOrigin& origin);

/// Bytes that are read block by block.
class ByteSource {
 public:
  virtual ~ByteSource() = default;
  [[nodiscard]] virtual std::int64_t size() const = 0;
  /// `offset + length` does not exceed the size.
  virtual void read(std::int64_t offset, std::byte* out, std::size_t length) const = 0;
};

class TextSource : public ByteSource {
 public:
  explicit TextSource(std::string text) : text_(std::move(text)) {}
  [[nodiscard]] std::int64_t size() const override {
    return static_cast<std::int64_t>(text_.size());
  }
  void read(std::int64_t offset, std::byte* out, std::size_t length) const override;

 private:
  std::string text_;
};

/// The .DAT file of a recording: 16-bit little-endian words, channels interlaced.
class SampleSource : public ByteSource {
 public:
  explicit SampleSource(const Recording& recording);
  [[nodiscard]] std::int64_t size() const override { return size_; }
  void read(std::int64_t offset, std::byte* out, std::size_t length) const override;

 private:
  std::vector<std::byte> pattern_;
  std::int64_t size_;
};

}  // namespace vksim
