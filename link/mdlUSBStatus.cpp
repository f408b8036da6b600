// SPDX-License-Identifier: MIT
// Slices of the status and card replies. A slice that is no number counts as 0: the reply may be
// an error text or half a line.
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlWireText.h"

namespace vk {

namespace {

int32_t lastReplyNumber(const WireField& field, std::size_t channel = 1) {
  return readWhole(field.of(gLastReply, channel)).value_or(0);
}

}  // namespace

int32_t staSerial() {
  return lastReplyNumber(status_text::kSerial);
}

std::string staTime() {
  return status_text::kTime.of(gLastReply);
}

std::string staDate() {
  return status_text::kDate.of(gLastReply);
}

int16_t staSyncMode() {
  return lastReplyNumber(status_text::kSync) == 1 ? 1 : 0;
}

int16_t staChFlag(int channel) {
  return lastReplyNumber(status_text::kBalance, static_cast<std::size_t>(channel)) == 1 ? 1 : 0;
}

std::string staBalance(int channel) {
  return status_text::kBalance.of(gLastReply, static_cast<std::size_t>(channel));
}

int16_t staBoxState() {
  const int32_t state = lastReplyNumber(status_text::kState);
  return state > 0 && state < 99 ? static_cast<int16_t>(state) : int16_t{0};
}

std::string fileCountTextOf(int32_t result) {
  switch (result) {
    case kUsbOk:
      return card_text::kMeasured.of(gLastReply) + "/" + card_text::kReserved.of(gLastReply);
    case kUsbNoCard:
      return "Un-insert";
    case kUsbUnreadable:
      return "Error";
    default:
      return "";
  }
}

}  // namespace vk
