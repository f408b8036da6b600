// SPDX-License-Identifier: MIT
// The conditions of the dialog to the box, and the balance of the box to the dialog.
#pragma once

#include <cstdint>
#include <optional>

#include "base/mdlJob.h"
#include "conditions/mdlDialogConditions.h"

namespace vk {

struct ConditionsToSend {
  int32_t serial = kNoSerial;
  CommandTexts texts;
  int32_t channelMode = 0;
  PerChannel<int16_t> balance;
};

/// SET, UNT, CEF and the balance of each used channel, in this order, up to the first that fails
/// or after which the work is to end. True when the box has taken all and the program goes on.
[[nodiscard]] bool sendConditions(const ConditionsToSend& send, const JobView& view);

/// The balance that a box reports, as positions in the lists of the dialog, -1 for a digit that is
/// none; its row takes over the others. Empty when the box does not answer.
std::optional<PerChannel<int32_t>> fetchBalance(MeasureSetting& row);

}  // namespace vk
