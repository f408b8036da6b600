// SPDX-License-Identifier: MIT
// What the logic of every kind promises to its window.
#include "monitors/mdlMonitorLogic.h"

#include <gtest/gtest.h>

#include "monitors/mdlBarMonitor.h"
#include "monitors/mdlCircleMonitor.h"
#include "monitors/mdlNumMonitor.h"
#include "monitors/mdlWaveMonitor.h"
#include "monitors/mdlXYMonitor.h"
#include "tests/monitors/logic_test.h"

namespace vktest {
namespace {

template <typename Monitor, typename Record>
class Kind : public MonitorLogicTest<Monitor, Record> {
 public:
  void TestBody() override {}
  void holds(const char* value, const char* lost, const char* lines) {
    SCOPED_TRACE(lost);
    this->init(100, 100);
    const std::string first = this->frame();
    const auto count = [&](const std::string& colour) {
      std::size_t found = 0;
      for (auto at = first.find(colour); at != first.npos; at = first.find(colour, at + 1)) ++found;
      return std::to_string(found);
    };
    EXPECT_EQ(count("4F4F4F") + " " + count("8F8F8F"), lines) << "of the grid and the ground";
    EXPECT_EQ(this->said(), "[ue]") << "init says the unit";
    this->take("+00012", "+00012", "+00012", "+00012");
    EXPECT_EQ(this->log, "") << "taking in draws nothing";
    this->frame();
    EXPECT_EQ(this->said(), value);
    EXPECT_EQ(this->frame() + this->said(), "") << "nothing new";
    this->monitor.lose();
    EXPECT_EQ(this->said(), lost);
    this->frame();
    this->monitor.lose();
    EXPECT_EQ(this->frame() + this->said(), "") << "a loss is told once";
    this->monitor.reloadUnit(0);
    EXPECT_EQ(this->said(), "[ue]");
    this->monitor.clear();
    this->monitor.resize(50, 50);
    EXPECT_TRUE(this->monitor.show({this->shown, this->twin, &this->extra})) << "another size";
  }
};

TEST(MonitorContract, HoldsForEveryKind) {
  Kind<vk::NumMonitor, vk::NumMonitorRec>().holds("^+12", "[--- ]^--- _--- ", "0 0");
  Kind<vk::WaveMonitor, vk::WaveMonitorRec>().holds("12", "---[]", "16 2");
  Kind<vk::XYMonitor, vk::XYMonitorRec>().holds("12", "---[]", "16 2");
  Kind<vk::BarMonitor, vk::BarMonitorRec>().holds("12", "---[]", "9 1");
  Kind<vk::CircleMonitor, vk::CircleMonitorRec>().holds("12", "---[]", "31 7");
}

}  // namespace
}  // namespace vktest
