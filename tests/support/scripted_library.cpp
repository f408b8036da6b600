// SPDX-License-Identifier: MIT
#include "tests/support/scripted_library.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "link/vk240q_lib.h"

namespace vktest {

namespace {

std::map<int32_t, std::string>& lastRequest() {
  static std::map<int32_t, std::string> requests;
  return requests;
}

void note(std::string line) {
  library().transcript.push_back(std::move(line));
}

/// As the real library does, a transfer opens what a close has closed.
void noteTransfer(std::string line) {
  note(std::move(line));
  library().open = 1;
}

template <typename T>
T take(std::deque<T>& queue, T otherwise) {
  if (queue.empty()) return otherwise;
  T first = queue.front();
  queue.pop_front();
  return first;
}

int32_t deliver(const ScriptedLibrary::Reply& reply, void* target, std::size_t room) {
  if (reply.result > 0) std::memcpy(target, reply.bytes.data(), std::min(room, reply.bytes.size()));
  return reply.result;
}

}  // namespace

ScriptedLibrary& library() {
  static ScriptedLibrary instance;
  return instance;
}

std::string ScriptedLibrary::takeTranscript() {
  std::string text;
  for (const auto& line : transcript) text += line + "\n";
  transcript.clear();
  return text;
}

}  // namespace vktest

using vktest::library;
using vktest::note;

extern "C" {

int32_t Vk240qCountDevices(void) {
  note("count");
  return library().devices;
}

int32_t Vk240qStatus(void) {
  note("status");
  return library().open;
}

int32_t Vk240qClose(void) {
  note("close");
  library().open = 0;
  return 0;
}

int32_t Vk240qWriteA(int32_t handle, const char* text, int32_t length) {
  const std::string request(text, static_cast<std::size_t>(length));
  vktest::noteTransfer("write(" + std::to_string(handle) + "," + request + ")");
  vktest::lastRequest()[handle] = request;
  return vktest::take(library().writeResults, 64);
}

int32_t Vk240qReadA(int32_t handle, char* buffer) {
  vktest::noteTransfer("read(" + std::to_string(handle) + ")");
  if (library().answer) {
    return vktest::deliver(library().answer(handle, vktest::lastRequest()[handle]), buffer, 80);
  }
  return vktest::deliver(vktest::take(library().replies, {"", -1005}), buffer, 80);
}

int32_t Vk240qWriteB(int32_t handle, const void*, int32_t length) {
  vktest::noteTransfer("writeB(" + std::to_string(handle) + "," + std::to_string(length) + ")");
  return vktest::take(library().writeResults, 64);
}

int32_t Vk240qReadB(int32_t handle, void* bytes, int32_t length) {
  vktest::noteTransfer("readB(" + std::to_string(handle) + "," + std::to_string(length) + ")");
  return vktest::deliver(vktest::take(library().blocks, {"", -1006}), bytes,
                         static_cast<std::size_t>(length));
}

int32_t Vk240qSetReadTimeout(int32_t seconds) {
  note("timeout(" + std::to_string(seconds) + ")");
  return 0;
}

}  // extern "C"
