// SPDX-License-Identifier: MIT
// The slices of the status and card replies, on a reply of any bytes and any length. An exchange
// always leaves 80 characters; a shorter reply must do no harm either.
#include <tuple>

#include "fuzz/fuzz_check.h"
#include "link/mdlExchange.h"
#include "link/mdlUSBCommand.h"

using vkfuzz::require;

namespace {

void checkReply(std::string reply) {
  vk::gLastReply = std::move(reply);
  const std::string_view text = vk::gLastReply;
  const int16_t state = vk::staBoxState();
  require(state >= 0 && state < 99, "the state is 0 to 98", text);
  const int16_t sync = vk::staSyncMode();
  require(sync == 0 || sync == 1, "the sync mode is 0 or 1", text);
  for (int channel = 1; channel <= 4; ++channel) {
    const int16_t flag = vk::staChFlag(channel);
    require(flag == 0 || flag == 1, "a channel flag is 0 or 1", text);
  }
  std::ignore = vk::staSerial();
  require(vk::staDate().size() <= 8 && vk::staTime().size() <= 8, "a date and a time fit", text);
  require(vk::fileCountTextOf(vk::kUsbOk).size() <= 7, "files and room fit", text);
  const int32_t number = vk::replyErrorNumber(text);
  require(number >= 0 && number <= vk::kUsbUnreadable, "an error is 0 to 100", text);
  require(vk::isErrorReply(text) || number == vk::kUsbUnreadable, "no error is unreadable", text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  std::string reply(vkfuzz::textOfInput(data, size));
  checkReply(reply);
  reply.resize(vk::kReplyLength, ' ');
  checkReply(reply);
  return 0;
}
