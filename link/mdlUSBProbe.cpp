// SPDX-License-Identifier: MIT
// The probes: questions to a device that is not in the box table yet. They read the reply by
// themselves, keep nothing in gLastReply and show nothing.
#include <algorithm>
#include <optional>

#include "base/mdlGuard.h"
#include "base/mdlText.h"
#include "link/mdlExchange.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlModel.h"

namespace vk {

namespace {

constexpr int32_t kProbeFailed = -1;
constexpr int32_t kInUpgradeMode = -1;
constexpr int32_t kUpgradeDevice = 1;

bool hasThreeCommas(const std::optional<std::string>& reply) {
  return reply && std::count(reply->begin(), reply->end(), ',') == 3;
}

/// The first line without the blanks around it.
std::string firstLine(const std::string& reply) {
  return trim(std::string_view(reply).substr(0, reply.find_first_of("\r\n")));
}

}  // namespace

int32_t usbProbeModel(int32_t handle) {
  const FlagGuard busy(gUSBBusy);
  if (!hasThreeCommas(askText(handle, "LST1"))) return kProbeFailed;
  if (!hasThreeCommas(askText(handle, "LST2"))) return kProbeFailed;
  const auto reply = askText(handle, "MET");
  if (!reply) return kProbeFailed;
  // The oldest model does not know the command.
  if (contains(*reply, "ERR")) return 0;
  const int32_t model = readWhole(firstLine(*reply)).value_or(kProbeFailed);
  return isModel(model) ? model : kProbeFailed;
}

int32_t usbProbeUpgrade(int32_t handle) {
  const FlagGuard busy(gUSBBusy);
  const auto reply = askText(handle, "LST1");
  return reply && contains(*reply, "ERR") ? kInUpgradeMode : 0;
}

int32_t usbUpgradeMET(int32_t& type) {
  const FlagGuard busy(gUSBBusy);
  type = 0;
  const auto reply = askText(kUpgradeDevice, "MET");
  if (!reply) return 0;
  type = contains(*reply, "ERR") ? 0 : 2;
  return kInUpgradeMode;
}

}  // namespace vk
