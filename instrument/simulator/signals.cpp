// SPDX-License-Identifier: MIT
#include "instrument/simulator/signals.h"

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "instrument/simulator/numbers.h"

namespace vksim {
namespace {

// A fixed scramble of the 5-microsecond cell: the same moment always has the same noise, -1 to 1.
double noiseAt(Micros at) {
  auto x = static_cast<std::uint64_t>(at / 5) + 0x9E3779B97F4A7C15ULL;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ULL;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBULL;
  x ^= x >> 31;
  return static_cast<double>(x >> 11) / static_cast<double>(1ULL << 52) - 1.0;
}

double sineGain(Micros period, double cutoff) {
  if (cutoff <= 0) return 1;
  const double ratio = 1e6 / static_cast<double>(period) / cutoff;
  return 1 / std::sqrt(1 + ratio * ratio);
}

}  // namespace

double signalAt(const Signal& signal, Micros at, double cutoff) {
  const Micros inAll = ((at % kSignalPeriod) + kSignalPeriod) % kSignalPeriod;
  const double phase =
      static_cast<double>(inAll % signal.period) / static_cast<double>(signal.period);
  switch (signal.kind) {
    case SignalKind::kSine:
      return signal.amplitude * sineGain(signal.period, cutoff) *
             std::sin(2 * std::numbers::pi * phase);
    case SignalKind::kStep:
      return phase < 0.5 ? 0 : signal.amplitude;
    case SignalKind::kRamp:
      return signal.amplitude * (2 * phase - 1);
    case SignalKind::kNoise: {
      const double band = cutoff > 0 && cutoff < 10000 ? std::sqrt(cutoff / 10000) : 1;
      return signal.amplitude * band * noiseAt(inAll);
    }
    case SignalKind::kBridge: {  // a load that comes and goes
      const double swing = std::sin(std::numbers::pi * phase);
      return signal.amplitude * swing * swing;
    }
    case SignalKind::kFlat:
    case SignalKind::kOpen:
      break;
  }
  return 0;
}

std::optional<Signal> parseSignal(std::string_view text) {
  static const std::vector<std::pair<std::string, SignalKind>> kKinds = {
      {"flat", SignalKind::kFlat}, {"sine", SignalKind::kSine},   {"step", SignalKind::kStep},
      {"ramp", SignalKind::kRamp}, {"noise", SignalKind::kNoise}, {"bridge", SignalKind::kBridge},
      {"open", SignalKind::kOpen}};
  const auto items = words(text);
  if (items.empty() || items.size() > 4) return std::nullopt;
  Signal signal;
  bool known = false;
  for (const auto& [name, kind] : kKinds) {
    if (name != items[0]) continue;
    signal.kind = kind;
    known = true;
  }
  if (!known) return std::nullopt;
  if (items.size() > 1) {
    const auto amplitude = real(items[1]);
    if (!amplitude) return std::nullopt;
    signal.amplitude = *amplitude;
  }
  if (items.size() > 2) {
    const auto period = digits(items[2]);
    if (!period || *period < 1 || *period > 10000 || 10000 % *period != 0) return std::nullopt;
    signal.period = *period * 1000;
  }
  if (items.size() > 3) {
    const auto offset = real(items[3]);
    if (!offset) return std::nullopt;
    signal.offset = *offset;
  }
  return signal;
}

}  // namespace vksim
