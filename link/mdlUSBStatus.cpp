// SPDX-License-Identifier: MIT
// Slices of the status and card replies. A slice that is no number counts as 0: the reply may be
// an error text or half a line.
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"

namespace vk {

namespace {

int32_t lastReplyNumber(std::size_t position, std::size_t length) {
  return readWhole(mid(gLastReply, position, length)).value_or(0);
}

}  // namespace

int32_t staSerial() {
  return lastReplyNumber(30, 7);
}

std::string staTime() {
  return mid(gLastReply, 13, 8);
}

std::string staDate() {
  return mid(gLastReply, 4, 8);
}

int16_t staSyncMode() {
  return lastReplyNumber(22, 2) == 1 ? 1 : 0;
}

int16_t staChFlag(int channel) {
  return lastReplyNumber(24 + static_cast<std::size_t>(channel), 1) == 1 ? 1 : 0;
}

int16_t staBoxState() {
  const int32_t state = lastReplyNumber(1, 2);
  return state > 0 && state < 99 ? static_cast<int16_t>(state) : int16_t{0};
}

std::string fileCountTextOf(int32_t result) {
  switch (result) {
    case kUsbOk:
      return mid(gLastReply, 1, 3) + "/" + mid(gLastReply, 5, 3);
    case kUsbNoCard:
      return "Un-insert";
    case kUsbUnreadable:
      return "Error";
    default:
      return "";
  }
}

}  // namespace vk
