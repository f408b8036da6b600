// SPDX-License-Identifier: MIT
// The instrument's commands, one function each, and what an exchange leaves behind.
//
// A result is 0 for success, 1 to 99 an instrument error, 100 an unreadable reply, -1012 to -1001
// a transfer failure, -9999 (usbMON) no reply after the retry. Unless a comment says otherwise a
// function shows its failure itself in a "USB Error" box, so that callers only test for zero.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/clsDesktop.h"
#include "base/mdlJob.h"
#include "link/mdlExchange.h"
#include "link/mdlReadTimeout.h"

namespace vk {

inline constexpr int32_t kUsbNoCard = 50;
inline constexpr int32_t kUsbNoReply = -9999;
inline constexpr int kBlockBytes = 65536;

extern int32_t gCommReconnectCnt;
extern int32_t gCommSendErrCnt;
extern int32_t gCommRecvErrCnt;
extern int32_t gCommContentErrCnt;
void resetCommCounters();
/// Adds one; a counter above 2000000000 goes to 0.
void countUp(int32_t& counter);

/// What the commands tell the windows; set once at start-up, empty functions are skipped.
struct LinkEvents {
  std::function<void()> countersChanged;
};
extern LinkEvents gLinkEvents;

[[nodiscard]] int32_t usbSTA(int32_t handle);  // shows nothing; 0 also for an ERR reply
int32_t staSerial();
std::string staTime();
std::string staDate();
int16_t staSyncMode();
int16_t staChFlag(int channel);
/// The digit of a channel as the reply has it: "0" on, "1" off.
std::string staBalance(int channel);
/// The first two characters as a number when it is above 0 and below 99, else 0.
int16_t staBoxState();

int32_t usbRTM(int32_t serial, const std::string& dateTime);
int32_t usbSET(int32_t serial, const std::string& conditions);
int32_t usbUNT(int32_t serial, const std::string& units);
int32_t usbCEF(int32_t serial, const std::string& coefficients);
int32_t usbLST(int32_t serial, int selector);
int32_t usbCHK(int32_t serial, int test);
int32_t usbBAL(int32_t serial, int channel);
/// Shows nothing; retries as its two allowances say.
[[nodiscard]] int32_t usbMON(int32_t serial, int selector = 0);
int32_t usbRUN(int32_t serial);
int32_t usbHLT(int32_t serial);
int32_t usbMTR(int32_t serial);
[[nodiscard]] int32_t usbFLN(int32_t serial);  // shows nothing
/// The card text of the box table for a result of usbFLN.
std::string fileCountTextOf(int32_t result);
int32_t usbFMT(int32_t serial);
/// Reads the card's root directory into gCardDirectory (link/mdlCardDirectory.h). kUsbNoReply, with
/// nothing shown, when the view stops it or the program ends; a stopped one reads the rest first.
int32_t usbRTD(int32_t serial, const JobView& view = {});
/// The header file `name` of `size` bytes; on success `text` has size + 1 characters.
int32_t usbHFL(int32_t serial, const std::string& name, int32_t size, std::string& text);
/// Starts the transfer of a data file.
int32_t usbDAT(int32_t serial, const std::string& name);
/// The next block; `length` is a multiple of 64. The library's count; shows nothing.
[[nodiscard]] int32_t usbReadBlock(int32_t serial, void* bytes, int32_t length);
int32_t usbDMC(int32_t serial, int channel, int value);
[[nodiscard]] int32_t usbMET(int32_t serial);  // shows nothing
int32_t usbCAL(int32_t serial, int output);
int32_t usbSLN(int32_t newSerial);
inline constexpr int32_t kNoArgument = -9999;
[[nodiscard]] int32_t usbADJ(int32_t serial, int32_t a, int32_t b, int32_t c = kNoArgument);
[[nodiscard]] int32_t usbPWE(int block, int32_t imageSize);  // device 1, shows nothing

/// Model index 0 to 3, or -1. Shows nothing.
[[nodiscard]] int32_t usbProbeModel(int32_t handle);
/// -1 in upgrade mode, 0 otherwise and after a transfer failure.
[[nodiscard]] int32_t usbProbeUpgrade(int32_t handle);
/// -1 with type 2 (no ERR in the reply) or 0 (ERR); 0 on a transfer failure, type 0.
[[nodiscard]] int32_t usbUpgradeMET(int32_t& type);

/// The date-time text of RTM: "yy/m/d/h:m:s" without leading zeros.
std::string rtmText(const DateTime& time);

}  // namespace vk
