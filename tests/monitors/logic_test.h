// SPDX-License-Identifier: MIT
// The logic of one kind of monitor with its pictures, on a box table without any box.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "monitors/mdlMonitorLogic.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/recording_picture.h"

namespace vktest {

template <typename Monitor, typename Record, std::size_t channels = 1>
class MonitorLogicTest : public ::testing::Test {
 protected:
  MonitorLogicTest() { vk::resetBoxTable(); }
  ~MonitorLogicTest() override { vk::resetBoxTable(); }

  void init(int width, int height, const std::vector<int32_t>& slots = {1, 1, 1, 1}) {
    for (auto* picture : {&shown, &twin, &extra}) picture->resize(width, height);
    monitor.init(slots);
    monitor.resize(width, height);
  }
  template <typename... Readings>
  void take(Readings... readings) {
    const std::array<std::string_view, sizeof...(readings)> all{readings...};
    monitor.take(all);
  }
  /// What the next frame draws.
  std::string frame() {
    monitor.show({shown, twin, &extra});
    return shown.take();
  }
  /// The same without the lines of grid and cross, which never change.
  std::string drawn() {
    std::string kept;
    std::istringstream lines(frame());
    for (std::string line; std::getline(lines, line);) {
      const bool grid = line.ends_with(" 4F4F4F") || line.ends_with(" 8F8F8F") ||
                        line.ends_with("dotted") || line.ends_with("solid");
      if (!grid) kept += line + "\n";
    }
    return kept;
  }
  /// The new texts of the labels, "value[unit]^max_min" for each channel.
  std::string said() {
    std::string all;
    for (std::size_t i = 0; i < channels; ++i) {
      const auto labels = monitor.labels(i);
      all += (i == 0 ? "" : "|") + labels.value.value_or("");
      if (labels.unit) all += "[" + *labels.unit + "]";
      if (labels.max) all += "^" + *labels.max;
      if (labels.min) all += "_" + *labels.min;
    }
    return all;
  }

  FakeDesktop desk;
  std::string log;
  RecordingPicture shown{"shown", 0, 0, log};
  RecordingPicture twin{"twin", 0, 0, log};
  RecordingPicture extra{"extra", 0, 0, log};
  Record record;
  Monitor monitor{record};
};

}  // namespace vktest
