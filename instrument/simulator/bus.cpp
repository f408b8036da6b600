// SPDX-License-Identifier: MIT
#include "instrument/simulator/bus.h"

#include <algorithm>
#include <cstring>

namespace vksim {
namespace {

constexpr int kPacket = 64;

int inPackets(std::size_t bytes) {
  return static_cast<int>((bytes + kPacket - 1) / kPacket) * kPacket;
}

void garble(std::string& text) {
  // No letter and no comma is left, so that nothing of it can be taken for an answer.
  static constexpr std::string_view kNoise = "#~^@|";
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] != '\r' && text[i] != '\n') text[i] = kNoise[i % kNoise.size()];
}

}  // namespace

void Bus::catchUp() {
  const Micros now = clock_.now();
  rig.pass(now - seen_);
  seen_ = now;
}

void Bus::spend(double milliseconds) {
  if (timing.exchangeMs <= 0 || milliseconds <= 0) return;
  clock_.wait(static_cast<Micros>(milliseconds * 1000));
}

void Bus::enumerate() {
  devices_.clear();
  for (const auto& recorder : rig.recorders)
    if (recorder->plugged) devices_.push_back(recorder->id);
  enumerated_ = true;
}

int Bus::countDevices() {
  catchUp();
  enumerate();
  return static_cast<int>(devices_.size());
}

int Bus::close() {
  if (!open_) return kAlreadyClosed;
  open_ = false;
  enumerated_ = false;
  pending_.clear();
  return 0;
}

Recorder* Bus::find(int handle) {
  catchUp();
  if (!enumerated_) enumerate();
  if (handle < 1 || static_cast<std::size_t>(handle) > devices_.size()) return nullptr;
  const std::string& id = devices_[static_cast<std::size_t>(handle) - 1];
  for (const auto& recorder : rig.recorders) {
    if (recorder->id != id) continue;
    if (!recorder->plugged) {
      pending_.erase(id);
      return nullptr;
    }
    open_ = true;
    return recorder.get();
  }
  return nullptr;
}

int Bus::resetPipe(int handle) {
  const Recorder* const recorder = find(handle);
  if (recorder == nullptr) return kNotConnected;
  pending_.erase(recorder->id);
  return 0;
}

void Bus::enqueue(Recorder& recorder, std::string command, Answer answer) {
  Pending pending;
  pending.command = std::move(command);
  Faults& faults = recorder.faults;
  if (const auto length = faults.take(FaultKind::kShort, pending.command); length && !answer.blocks)
    answer.text.resize(
        std::min(answer.text.size(), static_cast<std::size_t>(std::max(*length, 0))));
  if (faults.take(FaultKind::kGarble, pending.command)) {
    garble(answer.text);
    pending.garbled = true;
  }
  if (answer.blocks)
    pending.failingBlock = faults.take(FaultKind::kBlock, pending.command).value_or(-1);
  pending.ready = clock_.now();
  if (timing.exchangeMs > 0) pending.ready += answer.busy;
  if (const auto late = faults.take(FaultKind::kLate, pending.command))
    pending.ready += static_cast<Micros>(*late) * 1000;
  pending.answer = std::move(answer);
  pending_[recorder.id].push_back(std::move(pending));
}

int Bus::writeA(int handle, std::string_view text) {
  Recorder* const recorder = find(handle);
  if (recorder == nullptr) return kNotConnected;
  const std::string command(text.substr(0, 3));
  if (const auto result = recorder->faults.take(FaultKind::kWrite, command)) return *result;
  std::erase_if(pending_[recorder->id],
                [](const Pending& one) { return one.answer.blocks != nullptr; });
  Answer answer;
  if (const auto number = recorder->faults.take(FaultKind::kError, command)) {
    answer.text = errorReply(*number);
    answer.refusedFile = command == "DAT";
  } else {
    answer = answerCommand(rig, *recorder, text);
  }
  enqueue(*recorder, command, std::move(answer));
  return kTransferred;
}

int Bus::writeB(int handle, std::int64_t length) {
  Recorder* const recorder = find(handle);
  if (recorder == nullptr) return kNotConnected;
  const std::string command(kImageTransfer);
  if (const auto result = recorder->faults.take(FaultKind::kWrite, command)) return *result;
  spend(static_cast<double>(length) / (timing.megabytesPerSecond * 1000));
  Answer answer = answerImage(*recorder, length);
  if (const auto number = recorder->faults.take(FaultKind::kError, command))
    answer.text = errorReply(*number);
  enqueue(*recorder, command, std::move(answer));
  return kTransferred;
}

// The oldest answer, once it is ready; null when the read time-out passes first.
Bus::Pending* Bus::await(const std::string& id) {
  auto& queue = pending_[id];
  const Micros now = clock_.now();
  const Micros until = now + timeoutSeconds_ * kSecond;
  if (queue.empty() || queue.front().ready > until) {
    clock_.wait(until - now);
    return nullptr;
  }
  if (queue.front().ready > now) clock_.wait(queue.front().ready - now);
  return &queue.front();
}

int Bus::readA(int handle, char* buffer) {
  Recorder* const recorder = find(handle);
  if (recorder == nullptr) return kNotConnected;
  spend(timing.exchangeMs);
  const Pending* const pending = await(recorder->id);
  if (pending == nullptr || pending->answer.blocks) return kReadAFailed;
  const std::string reply = pending->answer.text.substr(0, kReplyBuffer);
  const auto failure = recorder->faults.take(FaultKind::kRead, pending->command);
  pending_[recorder->id].pop_front();
  if (failure) return *failure;
  std::copy(reply.begin(), reply.end(), buffer);
  return static_cast<int>(reply.size());
}

int Bus::readB(int handle, std::byte* bytes, int length) {
  Recorder* const recorder = find(handle);
  if (recorder == nullptr) return kNotConnected;
  if (length <= 0) return kReadBFailed;
  Pending* const pending = await(recorder->id);
  if (pending == nullptr) return kReadBFailed;
  if (const auto failure = recorder->faults.take(FaultKind::kRead, pending->command)) {
    pending_[recorder->id].pop_front();
    return *failure;
  }
  if (!pending->answer.blocks) {
    const int count = serveText(*pending, bytes, length);
    pending_[recorder->id].pop_front();
    return count;
  }
  spend(static_cast<double>(length) / (timing.megabytesPerSecond * 1000));
  const int count = serveBlock(*pending, bytes, length);
  if (count < 1 || pending->served >= pending->answer.blocks->size())
    pending_[recorder->id].pop_front();
  return count;
}

int Bus::serveText(const Pending& pending, std::byte* bytes, int length) const {
  const std::string& text = pending.answer.text;
  // A refusal must not be taken for a block of a file.
  if (pending.answer.refusedFile && length > kPacket) return kReadBFailed;
  std::memset(bytes, 0, static_cast<std::size_t>(length));
  const auto count = std::min(text.size(), static_cast<std::size_t>(length));
  std::memcpy(bytes, text.data(), count);
  return std::min(inPackets(count), length);
}

int Bus::serveBlock(Pending& pending, std::byte* bytes, int length) {
  if (pending.block++ == pending.failingBlock) return kReadBFailed;
  const ByteSource& source = *pending.answer.blocks;
  const auto count =
      static_cast<std::size_t>(std::min<std::int64_t>(source.size() - pending.served, length));
  source.read(pending.served, bytes, count);
  std::memset(bytes + count, 0, static_cast<std::size_t>(length) - count);
  if (pending.garbled)
    std::for_each(bytes, bytes + count, [](std::byte& one) { one ^= std::byte{0x5A}; });
  pending.served += static_cast<std::int64_t>(count);
  return inPackets(count);
}

}  // namespace vksim
