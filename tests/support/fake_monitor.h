// SPDX-License-Identifier: MIT
// A monitor without a window that notes a line for each call.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "monitors/mdlMonitorCycle.h"

namespace vktest {

class FakeMonitor : public vk::MonitorWindow {
 public:
  FakeMonitor(vk::MonitorKind kind, std::size_t index, std::vector<std::string>& log)
      : kind_(kind), index_(index), log_(log) {
    vk::setMonitorWindow(kind, index, this);
  }
  ~FakeMonitor() override {
    if (vk::monitorWindow(kind_, index_) == this) vk::setMonitorWindow(kind_, index_, nullptr);
  }

  std::function<void()> onUnload;

  void setInitMoniNum() override { note("init"); }
  void Monitoring(std::span<const std::string_view> readings) override {
    std::string texts = "reads";
    for (const auto reading : readings) texts += " [" + std::string(reading) + "]";
    note(texts);
  }
  void MoniDisConnect() override { note("lost"); }
  void setUnitLabel() override { note("unit"); }
  void showReadings() override { ++frames; }
  void showWindow() override { note("show"); }
  void hideWindow() override { note("hide"); }
  void unload() override {
    note("unload");
    if (onUnload) onUnload();
    vk::setMonitorWindow(kind_, index_, nullptr);
  }

  int frames = 0;

 private:
  void note(const std::string& what) {
    static const char* const kNames[] = {"numerical", "wave", "x-y", "bar", "circle"};
    log_.push_back(std::string(kNames[static_cast<int>(kind_)]) + " " + std::to_string(index_) +
                   " " + what);
  }

  vk::MonitorKind kind_;
  std::size_t index_;
  std::vector<std::string>& log_;
};

}  // namespace vktest
