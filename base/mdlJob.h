// SPDX-License-Identifier: MIT
// How a long work shows itself and is stopped. The work is a plain function: what it needs goes in
// as one description, what came of it comes back as one result, and a JobView stands for whoever
// watches. It needs no window, so a test can run it with none.
#pragma once

#include <functional>
#include <string>

namespace vk {

/// Empty functions are skipped.
struct JobView {
  /// What the work is doing: two lines, the second of which may be empty.
  std::function<void(const std::string& first, const std::string& second)> say;
  /// How far it is, 0 to 1.
  std::function<void(double fraction)> progress;
  /// True when the work is to end; asked after every yield.
  std::function<bool()> stopped;

  void tell(const std::string& first, const std::string& second = {}) const;
  void tellProgress(double fraction) const;
  /// Lets pending events run. False when the work is to end: stopped, or the program ends.
  [[nodiscard]] bool yield() const;
};

}  // namespace vk
