// SPDX-License-Identifier: MIT
// The slices of the status and card replies, on a reply of any bytes and any length. An exchange
// always leaves 80 characters; a shorter reply must do no harm either.
#include <algorithm>

#include "fuzz/fuzz_check.h"
#include "link/mdlExchange.h"
#include "link/mdlUSBCommand.h"

using vkfuzz::require;

namespace {

constexpr std::size_t kSerialAt = 29;
constexpr std::size_t kSerialDigits = 7;
constexpr std::size_t kChannelsAt = 24;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The digits as they stand; -1 when one of them is none.
int32_t digitsAt(std::string_view reply, std::size_t at, std::size_t count) {
  const std::string_view digits = reply.substr(std::min(at, reply.size()), count);
  if (digits.size() < count || !std::all_of(digits.begin(), digits.end(), isDigit)) return -1;
  return std::atoi(std::string(digits).c_str());
}

void checkNumbers(std::string_view reply) {
  const int32_t serial = digitsAt(reply, kSerialAt, kSerialDigits);
  require(serial < 0 || vk::staSerial() == serial, "seven digits are the serial", reply);
  const int32_t written = digitsAt(reply, 0, 2);
  const int16_t state = vk::staBoxState();
  require(state >= 0 && state < 99, "the state is 0 to 98", reply);
  require(written < 0 || state == written % 99, "two digits are the state", reply);
  const int16_t sync = vk::staSyncMode();
  const int32_t syncWritten = digitsAt(reply, 21, 2);
  require(sync == 0 || sync == 1, "the sync mode is 0 or 1", reply);
  require(syncWritten < 0 || sync == (syncWritten == 1), "01 is a slave", reply);
  for (int channel = 1; channel <= 4; ++channel) {
    const std::size_t at = kChannelsAt + static_cast<std::size_t>(channel) - 1;
    const bool one = at < reply.size() && reply[at] == '1';
    require(vk::staChFlag(channel) == (one ? 1 : 0), "a channel flag is its digit", reply);
  }
}

void checkTexts(std::string_view reply) {
  const auto slice = [reply](std::size_t at, std::size_t length) {
    return std::string(reply.substr(std::min(at, reply.size()), length));
  };
  require(vk::staDate() == slice(3, 8), "the date stands at 4", reply);
  require(vk::staTime() == slice(12, 8), "the time stands at 13", reply);
  require(vk::fileCountTextOf(vk::kUsbOk) == slice(0, 3) + "/" + slice(4, 3),
          "the card text is files and room", reply);
}

void checkErrorNumber(std::string_view reply) {
  const int32_t number = vk::replyErrorNumber(reply);
  require(number >= 0 && number <= vk::kUsbUnreadable, "an error is 0 to 100", reply);
  const int32_t written = digitsAt(reply, 4, 2);
  if (!vk::isErrorReply(reply)) {
    require(number == vk::kUsbUnreadable, "no error reply is unreadable", reply);
  } else if (written >= 0) {
    require(number == written, "two digits are the error", reply);
  }
}

void checkReply(std::string reply) {
  vk::gLastReply = std::move(reply);
  checkNumbers(vk::gLastReply);
  checkTexts(vk::gLastReply);
  checkErrorNumber(vk::gLastReply);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  std::string reply(vkfuzz::textOfInput(data, size));
  checkReply(reply);
  reply.resize(vk::kReplyLength, ' ');
  checkReply(reply);
  return 0;
}
