// SPDX-License-Identifier: MIT
//
// What the sensors of a simulated recorder see, in microstrain (or millivolt on a voltage range) at
// a moment. Everything repeats after ten seconds, which every sampling interval divides, so that a
// recording of any length is one pattern repeated.
#pragma once

#include <optional>
#include <string_view>

#include "instrument/simulator/clock.h"

namespace vksim {

inline constexpr Micros kSignalPeriod = 10 * kSecond;

enum class SignalKind { kFlat, kSine, kStep, kRamp, kNoise, kBridge, kOpen };

struct Signal {
  SignalKind kind = SignalKind::kFlat;
  double amplitude = 0;
  Micros period = kSecond;  ///< divides kSignalPeriod
  double offset = 0;        ///< the static unbalance, which BAL takes away

  bool operator==(const Signal&) const = default;
};

/// The signal without its offset, behind a low-pass filter of `cutoff` Hz (0: none). An open
/// channel gives 0; who reads it has to look at the kind.
[[nodiscard]] double signalAt(const Signal& signal, Micros at, double cutoff);

/// "kind [amplitude [period in ms [offset]]]", as "sine 2000 1000 -30".
[[nodiscard]] std::optional<Signal> parseSignal(std::string_view text);

}  // namespace vksim
