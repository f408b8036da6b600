// SPDX-License-Identifier: MIT
// Two jobs of a moment on boxes: zero-balancing channels, and initialising a card.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/mdlJob.h"

namespace vk {

struct BalanceStep {
  int32_t serial = 0;
  int32_t channel = 1;
  bool operator==(const BalanceStep&) const = default;
};

/// The work for a selection: all boxes with a serial, lost ones too, or one; all channels that the
/// mode of a box has, or one.
std::vector<BalanceStep> balanceSteps(int32_t serial, int32_t channel);

/// Balances one channel after the other. A channel whose balance is off refuses, and counts as done
/// all the same; after another failure the user is asked whether to go on. The channels done: fewer
/// than the steps when he does not want to, or when the view or the end of the program stops it.
std::size_t runBalance(const std::vector<BalanceStep>& steps, const JobView& view);

/// The question before a card is initialised; false after Cancel.
bool askCardInit(int32_t serial);
/// Initialises the card; the result is the command's, which has shown a failure.
int32_t runCardInit(int32_t serial, const JobView& view);

}  // namespace vk
