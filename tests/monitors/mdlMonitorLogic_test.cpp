// SPDX-License-Identifier: MIT
// What the logic of every kind promises to its window.
#include "monitors/mdlMonitorLogic.h"

#include <gtest/gtest.h>

#include "monitors/mdlBarMonitor.h"
#include "monitors/mdlCircleMonitor.h"
#include "monitors/mdlNumMonitor.h"
#include "monitors/mdlWaveMonitor.h"
#include "monitors/mdlXYMonitor.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/recording_picture.h"

namespace vk {
namespace {

class MonitorContract : public ::testing::Test {
 protected:
  ~MonitorContract() override { resetBoxTable(); }

  static void take(MonitorLogic& logic, std::string_view reading) {
    const auto all = filled<std::string_view, kMostChannels>(reading);
    logic.take(all);
  }
  /// The new texts of all labels of the first channel.
  static std::string said(MonitorLogic& logic) {
    const auto labels = logic.labels(0);
    std::string all;
    for (const auto& text : {labels.value, labels.unit, labels.max, labels.min})
      all += text.value_or("=") + "|";
    return all;
  }

  vktest::FakeDesktop desk;
  NumMonitorRec num;
  WaveMonitorRec wave;
  XYMonitorRec xy;
  BarMonitorRec bar;
  CircleMonitorRec circle;
  NumMonitor numbers{num};
  WaveMonitor waves{wave};
  XYMonitor plots{xy};
  BarMonitor bars{bar};
  CircleMonitor dials{circle};
  std::string log;
  vktest::RecordingPicture shown{"shown", 100, 100, log};
  vktest::RecordingPicture twin{"twin", 100, 100, log};
  vktest::RecordingPicture extra{"extra", 100, 100, log};
};

TEST_F(MonitorContract, HoldsForEveryKind) {
  resetBoxTable();
  const struct {
    MonitorLogic& logic;
    const char* value;
    const char* lost;
  } rows[] = {{numbers, "=|=|+12|=|", "=|--- |--- |--- |"},
              {waves, "12|=|=|=|", "---||=|=|"},
              {plots, "12|=|=|=|", "---||=|=|"},
              {bars, "12|=|=|=|", "---||=|=|"},
              {dials, "12|=|=|=|", "---||=|=|"}};
  const MonitorSurfaces surfaces{shown, twin, &extra};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.lost);
    row.logic.init(filled<int32_t, kMostChannels>(1));
    row.logic.resize(100, 100);
    row.logic.show(surfaces);
    EXPECT_NE(said(row.logic).find("|ue|"), std::string::npos) << "init says the unit";
    log.clear();
    take(row.logic, "+00012");
    EXPECT_EQ(log, "") << "taking in draws nothing";
    row.logic.show(surfaces);
    EXPECT_EQ(said(row.logic), row.value);
    log.clear();
    EXPECT_FALSE(row.logic.show(surfaces));
    EXPECT_EQ(log + said(row.logic), "=|=|=|=|") << "nothing new";
    row.logic.lose();
    EXPECT_EQ(said(row.logic), row.lost);
    take(row.logic, kLostReading);
    row.logic.show(surfaces);
    EXPECT_EQ(said(row.logic), "=|=|=|=|") << "a loss is told once";
    row.logic.reloadUnit(0);
    EXPECT_EQ(said(row.logic), "=|ue|=|=|");
    row.logic.clear();
    row.logic.resize(50, 50);
    EXPECT_TRUE(row.logic.show(surfaces)) << "another size is drawn";
    log.clear();
  }
}

}  // namespace
}  // namespace vk
