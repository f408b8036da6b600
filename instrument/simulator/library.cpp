// SPDX-License-Identifier: MIT
//
// The C operations of the instrument library on a simulated bus. Nothing here may throw into the
// caller: what cannot be done is an inside communication error.
#include "instrument/simulator/library.h"

#include <dlfcn.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <mutex>

#include "instrument/simulator/scenario.h"
#include "link/vk240q_lib.h"

namespace vksim {
namespace {

constexpr std::int32_t kInsideError = -1009;
constexpr int kWriteTimeout = 5;

std::filesystem::path scenarioPath() {
  Dl_info info{};
  // Any object of ours tells which file was loaded.
  static const int kHere = 0;
  if (dladdr(&kHere, &info) == 0 || info.dli_fname == nullptr) return {};
  return std::filesystem::path(info.dli_fname).parent_path() / "vk240q-sim.conf";
}

Micros localCalendar() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return (static_cast<Micros>(now) + local.tm_gmtoff) * kSecond;
}

// The recorders of a user: real time, and a scenario file that is followed.
struct Own {
  SteadyClock clock;
  Bus bus{clock, localCalendar()};
  ScenarioWatch watch{scenarioPath()};

  void follow() {
    std::vector<std::string> problems;
    const auto scenario = watch.poll(clock.now(), problems);
    for (const std::string& problem : problems) std::fprintf(stderr, "%s\n", problem.c_str());
    if (scenario) applyScenario(*scenario, bus);
  }
};

std::mutex gMutex;
Bus* gAttached = nullptr;
std::unique_ptr<Own> gOwn;

Bus& currentBus() {
  if (gAttached != nullptr) return *gAttached;
  if (!gOwn) gOwn = std::make_unique<Own>();
  gOwn->follow();
  return gOwn->bus;
}

template <typename Operation>
std::int32_t guarded(Operation operation) noexcept {
  try {
    const std::lock_guard lock(gMutex);
    return static_cast<std::int32_t>(operation(currentBus()));
  } catch (...) {
    return kInsideError;
  }
}

}  // namespace

void attachBus(Bus* bus) {
  const std::lock_guard lock(gMutex);
  gAttached = bus;
}

}  // namespace vksim

using vksim::Bus;
using vksim::guarded;

extern "C" {

int32_t Vk240qCountDevices(void) {
  return guarded([](Bus& bus) { return bus.countDevices(); });
}

int32_t Vk240qStatus(void) {
  return guarded([](Bus& bus) { return bus.status(); });
}

int32_t Vk240qClose(void) {
  return guarded([](Bus& bus) { return bus.close(); });
}

int32_t Vk240qWriteA(int32_t handle, const char* text, int32_t length) {
  return guarded([&](Bus& bus) -> int {
    if (text == nullptr || length < 0) return vksim::kWriteAFailed;
    return bus.writeA(handle, {text, static_cast<std::size_t>(length)});
  });
}

int32_t Vk240qReadA(int32_t handle, char* buffer) {
  return guarded([&](Bus& bus) -> int {
    if (buffer == nullptr) return vksim::kReadAFailed;
    return bus.readA(handle, buffer);
  });
}

int32_t Vk240qWriteB(int32_t handle, const void* bytes, int32_t length) {
  return guarded([&](Bus& bus) -> int {
    if (bytes == nullptr || length <= 0) return vksim::kWriteBFailed;
    return bus.writeB(handle, length);
  });
}

int32_t Vk240qReadB(int32_t handle, void* bytes, int32_t length) {
  return guarded([&](Bus& bus) -> int {
    if (bytes == nullptr) return vksim::kReadBFailed;
    return bus.readB(handle, static_cast<std::byte*>(bytes), length);
  });
}

int32_t Vk240qSetReadTimeout(int32_t seconds) {
  return guarded([&](Bus& bus) {
    bus.setReadTimeout(seconds);
    return 0;
  });
}

int32_t Vk240qResetPipe(int32_t handle) {
  return guarded([&](Bus& bus) { return bus.resetPipe(handle); });
}

int32_t Vk240qResetDevice(int32_t handle) {
  return Vk240qResetPipe(handle);
}

int32_t Vk240qGetReadTimeout(void) {
  return guarded([](Bus& bus) { return bus.readTimeout(); });
}

int32_t Vk240qGetWriteTimeout(void) {
  return vksim::kWriteTimeout;
}

int32_t Vk240qCloseDevice(int32_t handle) {
  return Vk240qResetPipe(handle);
}

// Transfers are over when the operation returns: there is nothing left to stop.
int32_t Vk240qStopControl(int32_t handle) {
  return guarded([&](Bus& bus) { return bus.isPresent(handle) ? 0 : int{vksim::kNotConnected}; });
}

int32_t Vk240qStopRead(int32_t handle) {
  return Vk240qStopControl(handle);
}

int32_t Vk240qStopWrite(int32_t handle) {
  return Vk240qStopControl(handle);
}

int32_t Vk240qGetDeviceDescriptor(int32_t handle, void* bytes, int32_t length) {
  // Length, type, USB 1.1, vendor class, packet 64, unregistered vendor and product, version 1.0.
  static constexpr std::array<unsigned char, 18> kDescriptor = {
      18, 1, 0x10, 0x01, 0xFF, 0, 0xFF, 64, 0xFF, 0xFF, 0x40, 0x02, 0x00, 0x01, 0, 0, 0, 1};
  return guarded([&](Bus& bus) -> int {
    if (bytes == nullptr || length < 1) return vksim::kReadBFailed;
    if (!bus.isPresent(handle)) return vksim::kNotConnected;
    const auto count = std::min(static_cast<std::size_t>(length), kDescriptor.size());
    std::memcpy(bytes, kDescriptor.data(), count);
    return static_cast<int>(count);
  });
}

}  // extern "C"
