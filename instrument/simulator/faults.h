// SPDX-License-Identifier: MIT
//
// Faults that are put on a recorder on purpose. Each names the command it spoils (three letters, or
// nothing for all), carries a number, and acts a given number of times or for ever.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vksim {

enum class FaultKind {
  kError,      ///< the command is not carried out and answered by ERR,number
  kLate,       ///< the answer comes after that many milliseconds
  kShort,      ///< the answer is cut to that many characters
  kGarble,     ///< every character of the answer is spoilt
  kWrite,      ///< the write gives that number; the command does not arrive
  kRead,       ///< the read gives that number; the answer is lost
  kBlock,      ///< the block read of that index (from 0) fails
  kDirectory,  ///< RTD shows a directory spoilt in that way
};

inline constexpr int kAlways = -1;
/// Name of a program image's transfer, which carries no command.
inline constexpr std::string_view kImageTransfer = "IMG";

struct Fault {
  FaultKind kind = FaultKind::kError;
  std::string command;
  int number = 0;
  int times = kAlways;

  bool operator==(const Fault&) const = default;
};

class Faults {
 public:
  void add(Fault fault) { faults_.push_back(std::move(fault)); }
  void clear() { faults_.clear(); }
  /// The number of the first fault of that kind for the command, one of its times used up.
  [[nodiscard]] std::optional<int> take(FaultKind kind, std::string_view command);

 private:
  std::vector<Fault> faults_;
};

}  // namespace vksim
