// SPDX-License-Identifier: MIT
#include "instrument/simulator/faults.h"

namespace vksim {

std::optional<int> Faults::take(FaultKind kind, std::string_view command) {
  for (Fault& fault : faults_) {
    if (fault.kind != kind || fault.times == 0) continue;
    if (!fault.command.empty() && fault.command != command) continue;
    if (fault.times > 0) --fault.times;
    return fault.number;
  }
  return std::nullopt;
}

}  // namespace vksim
