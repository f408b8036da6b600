// SPDX-License-Identifier: MIT
// Finding the boxes on the bus and following their state.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace vk {

enum StartMode : int32_t {
  kStartNormal = 0,          ///< connected, or nothing found
  kStartUpgrade = 1,         ///< one box, in upgrade mode
  kStartSeveralUpgrade = 2,  ///< an upgrade box among several
  kStartTooMany = 3,         ///< more than eight boxes
};

/// Receives the log of a scan line by line, each with its CR LF; an empty one is skipped.
using LogBox = std::function<void(const std::string& line)>;

/// Leaves the library without an open connection; the next transfer opens it again.
void closeLibrary();

/// Empties the box table and reads the configuration again (setDefaults, readConfig); set once at
/// start-up, called when a box in upgrade mode is refused.
extern std::function<void()> gRestoreDefaults;

/// The scan: fills the box table from row 1 and logs what it finds. Returns a StartMode.
int32_t connectBoxes(bool allowUpgrade, const LogBox& logBox);

/// Asks every connected box for its state and card; does nothing while an exchange runs. True after
/// a full round; false when it was skipped or a box was lost, and nothing is to be redrawn.
bool pollStatus();

/// Reads the state of one row back after a start, stop or trigger; a failure leaves the row.
void readBackState(int row);

}  // namespace vk
