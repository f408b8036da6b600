// SPDX-License-Identifier: MIT
// Writing a new program into an instrument that was started in upgrade mode: always device 1, and
// only one that is alone on the bus. A failed transfer leaves the instrument in upgrade mode.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/mdlJob.h"

namespace vk {

inline constexpr int32_t kSmallImage = 131072;
inline constexpr int32_t kLargeImage = 393216;
/// Bytes of a program file for the kind that usbUpgradeMET tells (0, or above 0).
int32_t upgradeImageSize(int32_t imageKind);

enum class UpgradeStep { kWarning, kChooseFile, kReady, kFinished, kFailed };

struct UpgradeText {
  std::string lines;   ///< label, lines separated by LF
  std::string button;  ///< caption of cmdNext
  bool operator==(const UpgradeText&) const = default;
};
UpgradeText upgradeText(UpgradeStep step);

/// The wizard behind the form.
struct Upgrade {
  UpgradeStep step = UpgradeStep::kWarning;
  int32_t imageKind = 0;
  std::vector<unsigned char> image;
  std::string message;  ///< what the label shows
};

/// Asks the instrument for its kind.
void beginUpgrade(Upgrade& upgrade);
/// The button: asks for the file, or transfers it, which tells label and progress text. Returns
/// true when the form is to close.
bool nextUpgradeStep(Upgrade& upgrade, const JobView& view);

}  // namespace vk
