// SPDX-License-Identifier: MIT
// The one shape of an exchange: a command text goes out, one reply of 80 characters comes back and
// is classified. Every text command is an instance of it (link/mdlUSBCommand.h); only the retrying
// and the probing commands take the two halves apart.
//
// A transfer result is passed on as it came, also when it is positive or zero: a write has
// succeeded only when it returned 64, a read when it returned at least 1.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vk {

inline constexpr int32_t kUsbOk = 0;
inline constexpr int32_t kUsbUnreadable = 100;
inline constexpr int32_t kUsbWriteOk = 64;
inline constexpr int kReplyLength = 80;
inline constexpr int32_t kWholeText = -1;

/// 1 while a command function is between its first write and its return, and while the dialog of
/// the conditions is there. Raised by a FlagGuard, so that an inner end leaves it up. Only the
/// status poll and the clock tick of the start form look at it.
extern int16_t gUSBBusy;
/// The whole reply of the last command that returns data.
extern std::string gLastReply;

/// Sends the first `length` bytes of the text. The library's result.
[[nodiscard]] int32_t sendText(int32_t handle, std::string_view text, int32_t length = kWholeText);
/// Reads into 80 fresh blanks, which the library overwrites from the front. The library's result;
/// the reply is never trimmed, so it always has 80 characters.
[[nodiscard]] int32_t receiveText(int32_t handle, std::string& reply);
/// One question without classification; empty after a failed transfer.
[[nodiscard]] std::optional<std::string> askText(int32_t handle, std::string_view text);

bool isErrorReply(std::string_view reply);
/// The number of "ERR,nn"; 100 for any other reply and for a number that does not read.
int32_t replyErrorNumber(std::string_view reply);

/// The usual test of a reply: END anywhere in it.
bool holdsEnd(std::string_view reply);

enum class Keep { kNothing, kReply };
enum class OnFailure { kShow, kSilent };

struct Exchange {
  int32_t handle = 0;
  std::string request;
  int32_t length = kWholeText;  ///< bytes of the request that go out
  bool (*isGood)(std::string_view reply) = holdsEnd;
  Keep keep = Keep::kNothing;
  std::string_view keepInstead = {};  ///< kept in place of the reply when not empty
  OnFailure onFailure = OnFailure::kShow;
};

/// Runs it with gUSBBusy raised, the failure box included. 0 or the failure's number; a read that
/// returned 0 is a failure whose number is 0.
[[nodiscard]] int32_t exchange(const Exchange& what);

/// errorText(number) in a modal box titled "USB Error".
void usbErrorBox(int32_t number);
/// Shows the number in the error box and returns it.
[[nodiscard]] int32_t shownFailure(int32_t number);

}  // namespace vk
