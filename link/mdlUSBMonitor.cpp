// SPDX-License-Identifier: MIT
// MON, the only command that retries. Transfer failures and bad replies have an allowance of one
// retry each; the failure that exceeds its allowance is not counted. A wait ends at once when the
// box table is built anew: then nothing is counted and nothing more is sent.
#include <fmt/format.h>

#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "link/mdlExchange.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

namespace {

constexpr double kAfterTransferFailure = 1.0;  // seconds
constexpr double kAfterBadReply = 15.0;
constexpr int32_t kRequestLength = 4;

enum class Attempt { kGood, kNotSent, kNotReceived, kBadReply };

Attempt attempt(int32_t serial, const std::string& request) {
  const int32_t handle = slotOf(serial);
  if (sendText(handle, request, kRequestLength) != kUsbWriteOk) return Attempt::kNotSent;
  std::string reply;
  if (receiveText(handle, reply) < 1) return Attempt::kNotReceived;
  if (reply.front() != '+' && reply.front() != '-') return Attempt::kBadReply;
  gLastReply = reply;
  return Attempt::kGood;
}

int32_t& counterOf(Attempt failure) {
  if (failure == Attempt::kNotSent) return gCommSendErrCnt;
  return failure == Attempt::kNotReceived ? gCommRecvErrCnt : gCommContentErrCnt;
}

}  // namespace

int32_t usbMON(int32_t serial, int selector) {
  const FlagGuard busy(gUSBBusy);
  const std::string request = fmt::format("MON{}", selector);
  // A wait lets events run, and with a new box table there is nobody left to answer.
  const uint32_t age = boxTableAge();
  const auto otherBoxes = [age] { return age != boxTableAge(); };
  bool transferRetried = false;
  bool replyRetried = false;
  while (!desktop().ending()) {
    const Attempt outcome = attempt(serial, request);
    if (outcome == Attempt::kGood) return kUsbOk;
    const bool badReply = outcome == Attempt::kBadReply;
    bool& retried = badReply ? replyRetried : transferRetried;
    if (retried) return badReply ? kUsbUnreadable : kUsbNoReply;
    retried = true;
    waitSeconds(badReply ? kAfterBadReply : kAfterTransferFailure, otherBoxes);
    if (otherBoxes()) return kUsbNoReply;
    countUp(counterOf(outcome));
    if (gLinkEvents.countersChanged) gLinkEvents.countersChanged();
  }
  return kUsbNoReply;
}

}  // namespace vk
