// SPDX-License-Identifier: MIT
#include "instrument/simulator/recording.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vksim {
namespace {

// Short patterns are repeated until copying one is worth a call.
constexpr std::size_t kSmallestPattern = std::size_t{256} << 10;

template <typename Item>
std::string joined(int channels, Item item) {
  std::string text;
  for (int i = 0; i < channels; ++i) {
    if (i > 0) text += ',';
    text += item(static_cast<std::size_t>(i));
  }
  return text;
}

void putWord(std::byte* out, int value) {
  const auto word = static_cast<std::uint16_t>(value);
  out[0] = static_cast<std::byte>(word & 0xFF);
  out[1] = static_cast<std::byte>(word >> 8);
}

}  // namespace

int readingAt(const Input& input, const ChannelConditions& channel, Micros at) {
  const double limit = std::min(channel.fullScale * 1.05, 32767.0);
  if (input.signal.kind == SignalKind::kOpen) return static_cast<int>(limit);
  const double physical = signalAt(input.signal, at, channel.cutoff) + input.signal.offset;
  const double reading = (physical - input.zero) * channel.perUnit +
                         input.shift * static_cast<double>(channel.fullScale);
  return static_cast<int>(std::lround(std::clamp(reading, -limit, limit)));
}

std::string headerText(const Recording& recording, const HeaderOrigin& origin) {
  const Conditions& conditions = recording.conditions;
  const int n = conditions.channels;
  const DateTime& date = recording.startDate;
  std::string text;
  const auto line = [&](std::string_view key, const auto& value) {
    text += fmt::format("{} {}\r\n", key, value);
  };
  line("DATASET", origin.stem);
  line("VERSION", 1);
  line("SERIES", joined(n, [](std::size_t i) { return fmt::format("CH{}", i + 1); }));
  line("DATE", fmt::format("{:02}-{:02}-{:04}", date.month, date.day, date.year));
  line("TIME", fmt::format("{:02}:{:02}:{:02}", date.hour, date.minute, date.second));
  line("RATE", kSecond / conditions.interval);
  line("VERT_UNITS", joined(n, [&](std::size_t i) { return origin.units[i]; }));
  line("HORZ_UNITS", "SEC");
  line("NUM_SERIES", n);
  line("STORAGE_MODE", "INTERLACED");
  line("FILE_TYPE", "INTEGER");
  line("SLOPE", joined(n, [&](std::size_t i) {
         const double perUnit = conditions.channel[i].perUnit;
         return fmt::format("{:.6E}", perUnit > 0 ? origin.coefficients[i] / perUnit : 0.0);
       }));
  line("X_OFFSET", joined(n, [](std::size_t) { return "0"; }));
  line("Y_OFFSET", joined(n, [](std::size_t) { return "0"; }));
  line("NUM_SAMPS", recording.frames);
  // Behind the keys that every reader looks for, what the recorder was told.
  line("BOX_MODEL", modelName(origin.model));
  line("BOX_NUMBER", fmt::format("{:07}", origin.serial));
  line("CONDITIONS", conditions.text);
  return text;
}

void TextSource::read(std::int64_t offset, std::byte* out, std::size_t length) const {
  std::memcpy(out, text_.data() + offset, length);
}

SampleSource::SampleSource(const Recording& recording) : size_(recording.dataBytes()) {
  const Conditions& conditions = recording.conditions;
  const auto channels = static_cast<std::size_t>(conditions.channels);
  const std::int64_t frames = std::min(recording.frames, kSignalPeriod / conditions.interval);
  pattern_.resize(static_cast<std::size_t>(frames) * channels * 2);
  std::byte* out = pattern_.data();
  for (std::int64_t k = 0; k < frames; ++k) {
    const Micros at = recording.start + k * conditions.interval;
    for (std::size_t c = 0; c < channels; ++c, out += 2)
      putWord(out, readingAt(recording.inputs[c], conditions.channel[c], at));
  }
  const std::size_t once = pattern_.size();
  while (once > 0 && pattern_.size() < kSmallestPattern &&
         static_cast<std::int64_t>(pattern_.size()) < size_) {
    pattern_.resize(pattern_.size() * 2);
    std::memcpy(pattern_.data() + pattern_.size() / 2, pattern_.data(), pattern_.size() / 2);
  }
}

void SampleSource::read(std::int64_t offset, std::byte* out, std::size_t length) const {
  if (pattern_.empty()) return;
  auto at = static_cast<std::size_t>(offset) % pattern_.size();
  while (length > 0) {
    const std::size_t part = std::min(length, pattern_.size() - at);
    std::memcpy(out, pattern_.data() + at, part);
    out += part;
    length -= part;
    at = 0;
  }
}

}  // namespace vksim
