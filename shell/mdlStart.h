// SPDX-License-Identifier: MIT
// The start form's box list: one row for each box found, with its clock running. A list row stands
// for the box-table row of the same position.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/mdlConnection.h"

namespace vk {

/// 1 when the start form was left by its OK button.
extern int32_t gStartOK;

struct StartRow {
  std::string serial;  ///< seven digits
  std::string clock;   ///< "yyyy/mm/dd  hh:mm:ss", empty at first
  bool ticked = false;
  bool operator==(const StartRow&) const = default;
};

/// First activation: scans, keeps the result in gStartMode and fills the rows. True when the clock
/// timer is to run.
bool activateStart(const LogBox& log, std::vector<StartRow>& rows);
/// A second of the clock timer; does nothing while an exchange runs. True when rows changed.
bool tickStartClocks(std::vector<StartRow>& rows);
/// Gives each ticked row's box the PC's time and shows what its clock then says.
void setStartClocks(std::vector<StartRow>& rows);

}  // namespace vk
