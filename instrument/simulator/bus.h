// SPDX-License-Identifier: MIT
//
// The USB side: which recorder a handle means, what the library operations return, and the answers
// that wait to be fetched. Nothing flushes them: an answer that was not read is what the next read
// gets. Only an unfinished block transfer ends with the next command.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "instrument/simulator/clock.h"
#include "instrument/simulator/commands.h"

namespace vksim {

enum LinkError {
  kNotConnected = -1001,
  kReadAFailed = -1005,
  kReadBFailed = -1006,
  kWriteAFailed = -1007,
  kWriteBFailed = -1008,
  kAlreadyClosed = -1012,
};

inline constexpr int kTransferred = 64;
inline constexpr int kReplyBuffer = 80;

struct Timing {
  double exchangeMs = 0;  ///< write and read of one command; 0: nothing takes any time
  double megabytesPerSecond = 20;
};

class Bus {
 public:
  Bus(Clock& clock, Micros calendar) : rig(calendar), clock_(clock), seen_(clock.now()) {}

  Rig rig;
  Timing timing;

  [[nodiscard]] int countDevices();
  [[nodiscard]] int status() const { return open_ ? 1 : 0; }
  int close();
  [[nodiscard]] int writeA(int handle, std::string_view text);
  [[nodiscard]] int readA(int handle, char* buffer);
  [[nodiscard]] int writeB(int handle, std::int64_t length);
  [[nodiscard]] int readB(int handle, std::byte* bytes, int length);
  void setReadTimeout(int seconds) { timeoutSeconds_ = seconds; }
  [[nodiscard]] int readTimeout() const { return timeoutSeconds_; }
  [[nodiscard]] bool isPresent(int handle) { return find(handle) != nullptr; }
  /// Throws away what was not fetched.
  int resetPipe(int handle);

  /// Lets recorder time catch up with the clock; every transfer does so first.
  void catchUp();

 private:
  struct Pending {
    std::string command;
    Answer answer;
    Micros ready = 0;
    std::int64_t served = 0;  ///< of the blocks
    int block = 0;            ///< index of the next block read
    int failingBlock = -1;
    bool garbled = false;
  };

  [[nodiscard]] Recorder* find(int handle);
  void enumerate();
  void enqueue(Recorder& recorder, std::string command, Answer answer);
  [[nodiscard]] Pending* await(const std::string& id);
  [[nodiscard]] int serveBlock(Pending& pending, std::byte* bytes, int length);
  [[nodiscard]] int serveText(const Pending& pending, std::byte* bytes, int length) const;
  void spend(double milliseconds);

  Clock& clock_;
  Micros seen_;
  bool open_ = false;
  bool enumerated_ = false;
  int timeoutSeconds_ = 7;
  std::vector<std::string> devices_;  // ids in the order of their handles
  std::map<std::string, std::deque<Pending>> pending_;
};

}  // namespace vksim
