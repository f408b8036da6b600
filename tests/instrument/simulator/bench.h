// SPDX-License-Identifier: MIT
//
// A bus on a virtual clock that stands at 5 January 2026, 9:30:00, and short ways to talk on it.
#pragma once

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "instrument/simulator/calendar.h"
#include "instrument/simulator/scenario.h"

namespace vksim {

inline Micros benchCalendar() {
  return *microsOf({2026, 1, 5, 9, 30, 0});
}

/// What stands between the bars.
inline std::vector<std::string_view> items(std::string_view text) {
  std::vector<std::string_view> all{text.substr(0, text.find('|'))};
  for (auto bar = text.find('|'); bar != text.npos; bar = text.find('|')) {
    text.remove_prefix(bar + 1);
    all.push_back(text.substr(0, text.find('|')));
  }
  return all;
}

struct Bench {
  VirtualClock clock;
  Bus bus{clock, benchCalendar()};

  /// `scenario` stands behind an emptied bus, so that only its own boxes are there.
  explicit Bench(std::string_view scenario) { load(scenario); }

  void load(std::string_view scenario) {
    Scenario parsed = parseScenario("bus = empty\n" + std::string(scenario));
    parsed.timing.exchangeMs = 0;
    applyScenario(parsed, bus);
  }

  Recorder& box(std::size_t index) { return *bus.rig.recorders[index]; }

  /// "write/read:reply", the reply without the blanks behind it and with its CR LF as "$".
  std::string transcript(int handle, std::string_view request) {
    const int written = bus.writeA(handle, request);
    std::string buffer(kReplyBuffer, ' ');
    const int read = bus.readA(handle, buffer.data());
    buffer.erase(buffer.find_last_not_of(' ') + 1);
    if (buffer.ends_with("\r\n")) buffer.replace(buffer.size() - 2, 2, "$");
    return std::to_string(written) + "/" + std::to_string(read) + ":" + buffer;
  }

  /// The reply alone, without its line end.
  std::string ask(int handle, std::string_view request) {
    const std::string all = transcript(handle, request);
    const std::string reply = all.substr(all.find(':') + 1);
    return reply.substr(0, reply.find('$'));
  }

  /// The replies to the requests between the bars, a blank behind each.
  std::string asks(int handle, std::string_view requests) {
    std::string all;
    for (const auto request : items(requests)) all += ask(handle, request) + " ";
    return all;
  }

  int state(int handle) { return std::stoi(ask(handle, "STA20").substr(0, 2)); }

  /// Everything that block reads of that length give after the request, as long as they succeed
  /// and `size` is not reached.
  std::string fetch(int handle, std::string_view request, int block, std::size_t size) {
    std::string all;
    if (bus.writeA(handle, request) != kTransferred) return all;
    std::vector<std::byte> bytes(static_cast<std::size_t>(block));
    while (all.size() < size) {
      if (bus.readB(handle, bytes.data(), block) < 1) break;
      all.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
    all.resize(std::min(all.size(), size));
    return all;
  }
};

}  // namespace vksim
