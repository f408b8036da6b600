// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorRecords.h"

namespace vk {

void resetMonitorRecords() {
  for (const auto* row : kMonitorRows) row->reset();
}

}  // namespace vk
