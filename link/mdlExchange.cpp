// SPDX-License-Identifier: MIT
#include "link/mdlExchange.h"

#include <algorithm>

#include "base/mdlBox.h"
#include "base/mdlGuard.h"
#include "base/mdlMessages.h"
#include "base/mdlText.h"
#include "link/vk240q_lib.h"

namespace vk {

int16_t gUSBBusy = 0;
std::string gLastReply;

int32_t sendText(int32_t handle, std::string_view text, int32_t length) {
  const auto whole = static_cast<int32_t>(text.size());
  const int32_t bytes = length == kWholeText ? whole : std::min(length, whole);
  return Vk240qWriteA(handle, text.data(), bytes);
}

int32_t receiveText(int32_t handle, std::string& reply) {
  reply.assign(kReplyLength, ' ');
  return Vk240qReadA(handle, reply.data());
}

std::optional<std::string> askText(int32_t handle, std::string_view text) {
  if (sendText(handle, text) != kUsbWriteOk) return std::nullopt;
  std::string reply;
  if (receiveText(handle, reply) < 1) return std::nullopt;
  return reply;
}

bool isErrorReply(std::string_view reply) {
  return reply.starts_with("ERR");
}

int32_t replyErrorNumber(std::string_view reply) {
  if (!isErrorReply(reply)) return kUsbUnreadable;
  // A sign would make the number look like a transfer failure to a caller that tests for those.
  const int32_t number = readWhole(mid(reply, 5, 2)).value_or(kUsbUnreadable);
  return number < 0 ? kUsbUnreadable : number;
}

bool holdsEnd(std::string_view reply) {
  return contains(reply, "END");
}

namespace {

int32_t transferAndClassify(const Exchange& what, bool& good) {
  good = false;
  const int32_t sent = sendText(what.handle, what.request, what.length);
  if (sent != kUsbWriteOk) return sent;
  std::string reply;
  const int32_t received = receiveText(what.handle, reply);
  if (received < 1) return received;
  if (!what.isGood(reply)) return replyErrorNumber(reply);
  if (what.keep == Keep::kReply) gLastReply = what.keepInstead.empty() ? reply : what.keepInstead;
  good = true;
  return kUsbOk;
}

}  // namespace

int32_t exchange(const Exchange& what) {
  // Timers fire while the error box stands, so the flag outlives it.
  const FlagGuard busy(gUSBBusy);
  bool good = false;
  const int32_t number = transferAndClassify(what, good);
  if (!good && what.onFailure == OnFailure::kShow) usbErrorBox(number);
  return number;
}

void usbErrorBox(int32_t number) {
  showBox("USB Error", errorText(number));
}

int32_t shownFailure(int32_t number) {
  usbErrorBox(number);
  return number;
}

}  // namespace vk
