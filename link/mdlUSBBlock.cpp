// SPDX-License-Identifier: MIT
// The commands whose answer is binary: the card's directory, a header file, a data file. An
// instrument that refuses answers with a block that begins with "ERR,nn".
#include <algorithm>
#include <array>
#include <string_view>

#include "base/mdlGuard.h"
#include "link/mdlCardDirectory.h"
#include "link/mdlExchange.h"
#include "link/mdlUSBCommand.h"
#include "link/vk240q_lib.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

namespace {

constexpr std::size_t kDirectoryBlock = 512;
constexpr std::size_t kDirectoryBlocks = kDirectoryBytes / kDirectoryBlock;
constexpr int32_t kTransferUnit = 64;
// A header file is a few hundred bytes; its size comes from the card and may be anything.
constexpr int32_t kLargestHeader = 16 << 20;

std::string_view textOfBytes(const unsigned char* bytes, std::size_t count) {
  return {reinterpret_cast<const char*>(bytes), count};
}

}  // namespace

int32_t usbRTD(int32_t serial, const JobView& view) {
  const FlagGuard busy(gUSBBusy);
  gCardDirectory.clear();
  const int32_t handle = slotOf(serial);
  const int32_t sent = sendText(handle, "RTD");
  if (sent != kUsbWriteOk) return shownFailure(sent);
  std::array<unsigned char, kDirectoryBytes> image{};
  // A stop takes effect behind the last block, or the next command would get what is still to come.
  bool stopped = false;
  for (std::size_t i = 0; i < kDirectoryBlocks; ++i) {
    unsigned char* const block = image.data() + i * kDirectoryBlock;
    const int32_t count = Vk240qReadB(handle, block, static_cast<int32_t>(kDirectoryBlock));
    if (count < 1) return shownFailure(count);
    const auto text = textOfBytes(block, kDirectoryBlock);
    if (isErrorReply(text)) return shownFailure(replyErrorNumber(text));
    view.tellProgress(static_cast<double>(i) / static_cast<double>(kDirectoryBlocks - 1));
    stopped = !view.yield() || stopped;
    if (desktop().ending()) return kUsbNoReply;
  }
  if (stopped) return kUsbNoReply;
  return decodeCardDirectory(image, gCardDirectory);
}

int32_t usbHFL(int32_t serial, const std::string& name, int32_t size, std::string& text) {
  const FlagGuard busy(gUSBBusy);
  text.clear();
  if (size < 0 || size > kLargestHeader) return shownFailure(kUsbUnreadable);
  const int32_t handle = slotOf(serial);
  const int32_t sent = sendText(handle, "HFL" + name);
  if (sent != kUsbWriteOk) return shownFailure(sent);
  const int32_t length = (size + kTransferUnit - 1) / kTransferUnit * kTransferUnit;
  std::string block(static_cast<std::size_t>(length), '\0');
  const int32_t count = Vk240qReadB(handle, block.data(), length);
  if (count < 1) return shownFailure(count);
  if (isErrorReply(block)) return shownFailure(replyErrorNumber(block));
  // The text takes one character behind the file; behind a full last unit that is a zero.
  block.resize(static_cast<std::size_t>(size) + 1);
  text = std::move(block);
  return kUsbOk;
}

int32_t usbDAT(int32_t serial, const std::string& name) {
  const FlagGuard busy(gUSBBusy);
  const int32_t sent = sendText(slotOf(serial), "DAT" + name);
  return sent == kUsbWriteOk ? kUsbOk : shownFailure(sent);
}

int32_t usbReadBlock(int32_t serial, void* bytes, int32_t length) {
  const FlagGuard busy(gUSBBusy);
  return Vk240qReadB(slotOf(serial), bytes, length);
}

}  // namespace vk
