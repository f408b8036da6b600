// SPDX-License-Identifier: MIT
#include "link/mdlUSBCommand.h"

#include <fmt/format.h>

#include "base/mdlGuard.h"
#include "base/mdlText.h"
#include "link/mdlExchange.h"
#include "link/mdlReadTimeout.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

int32_t gCommReconnectCnt = 0;
int32_t gCommSendErrCnt = 0;
int32_t gCommRecvErrCnt = 0;
int32_t gCommContentErrCnt = 0;
LinkEvents gLinkEvents;

namespace {

constexpr int32_t kFirstDevice = 1;
constexpr int32_t kCounterLimit = 2000000000;
constexpr int32_t kParameterError = 20;
constexpr int32_t kLargestSerial = 9999999;
constexpr int32_t kSmallImageBytes = 131072;
constexpr std::string_view kModelAnswer = "01";

bool isAnything(std::string_view) {
  return true;
}

bool isLongEnough(std::string_view reply) {
  return reply.size() >= 9;
}

bool isNoError(std::string_view reply) {
  return !isErrorReply(reply);
}

// "ERR,50" holds a comma as well, and a missing card must not pass as a count of files.
bool isFileCount(std::string_view reply) {
  return !isErrorReply(reply) && contains(reply, ",") && reply.size() >= 9;
}

bool isModelAnswer(std::string_view reply) {
  return contains(reply, kModelAnswer);
}

/// A command that is acknowledged by END.
int32_t order(int32_t serial, std::string request, int32_t length = kWholeText) {
  return exchange({.handle = slotOf(serial), .request = std::move(request), .length = length});
}

}  // namespace

void resetCommCounters() {
  gCommReconnectCnt = 0;
  gCommSendErrCnt = 0;
  gCommRecvErrCnt = 0;
  gCommContentErrCnt = 0;
}

void countUp(int32_t& counter) {
  counter = counter >= kCounterLimit ? 0 : counter + 1;
}

int32_t usbSTA(int32_t handle) {
  // Five of the six characters go out. An ERR reply is kept like a status: the state it then shows
  // is no valid one.
  return exchange({.handle = handle,
                   .request = "STA200",
                   .length = 5,
                   .isGood = isAnything,
                   .keep = Keep::kReply,
                   .onFailure = OnFailure::kSilent});
}

int32_t usbRTM(int32_t serial, const std::string& dateTime) {
  return order(serial, "RTM" + dateTime);
}

int32_t usbSET(int32_t serial, const std::string& conditions) {
  return order(serial, "SET" + conditions);
}

int32_t usbUNT(int32_t serial, const std::string& units) {
  return order(serial, "UNT" + units);
}

int32_t usbCEF(int32_t serial, const std::string& coefficients) {
  return order(serial, "CEF" + coefficients);
}

int32_t usbLST(int32_t serial, int selector) {
  // The length is the only test, so an ERR reply passes too; the decoders find no field in it.
  return exchange({.handle = slotOf(serial),
                   .request = fmt::format("LST{}", selector),
                   .length = 4,
                   .isGood = isLongEnough,
                   .keep = Keep::kReply});
}

int32_t usbCHK(int32_t serial, int test) {
  // The self checks take longer than an ordinary command.
  const ReadTimeoutGuard patience(kTimeoutCheck);
  return exchange({.handle = slotOf(serial),
                   .request = fmt::format("CHK{}", test),
                   .length = 4,
                   .isGood = isNoError,
                   .keep = Keep::kReply});
}

int32_t usbBAL(int32_t serial, int channel) {
  return order(serial, fmt::format("BAL{}", channel), 4);
}

int32_t usbRUN(int32_t serial) {
  return order(serial, "RUN");
}

int32_t usbHLT(int32_t serial) {
  return order(serial, "HLT");
}

int32_t usbMTR(int32_t serial) {
  return order(serial, "MTR");
}

int32_t usbFLN(int32_t serial) {
  return exchange({.handle = slotOf(serial),
                   .request = "FLN",
                   .isGood = isFileCount,
                   .keep = Keep::kReply,
                   .onFailure = OnFailure::kSilent});
}

int32_t usbFMT(int32_t serial) {
  return order(serial, "FMT");
}

int32_t usbDMC(int32_t serial, int channel, int value) {
  return order(serial, fmt::format("DMC{},{}", channel, value), 6);
}

int32_t usbMET(int32_t serial) {
  return exchange({.handle = slotOf(serial),
                   .request = "MET",
                   .isGood = isModelAnswer,
                   .keep = Keep::kReply,
                   .keepInstead = kModelAnswer,
                   .onFailure = OnFailure::kSilent});
}

int32_t usbCAL(int32_t serial, int output) {
  return order(serial, fmt::format("CAL{}", output), 4);
}

int32_t usbSLN(int32_t newSerial) {
  const FlagGuard busy(gUSBBusy);
  // Another count of digits would be cut to a serial that nobody asked for.
  if (newSerial < 0 || newSerial > kLargestSerial) return shownFailure(kParameterError);
  return exchange({.handle = kFirstDevice, .request = "SLN" + serialText(newSerial), .length = 10});
}

int32_t usbADJ(int32_t serial, int32_t a, int32_t b, int32_t c) {
  std::string request = fmt::format("ADJ{},{}", a, b);
  if (c != kNoArgument) request += fmt::format(",{}", c);
  return exchange(
      {.handle = slotOf(serial), .request = std::move(request), .onFailure = OnFailure::kSilent});
}

int32_t usbPWE(int block, int32_t imageSize) {
  // The fixed-width number is the image's size in units of 64 bytes.
  const int32_t units = imageSize == kSmallImageBytes ? 2048 : 6144;
  return exchange({.handle = kFirstDevice,
                   .request = fmt::format("PWE{:010},{}", units, block),
                   .onFailure = OnFailure::kSilent});
}

std::string rtmText(const DateTime& time) {
  return fmt::format("{}/{}/{}/{}:{}:{}", time.year % 100, time.month, time.day, time.hour,
                     time.minute, time.second);
}

}  // namespace vk
