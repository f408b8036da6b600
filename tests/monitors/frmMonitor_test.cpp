// SPDX-License-Identifier: MIT
// What several kinds of monitor window have in common.
#include "monitors/frmMonitor.h"

#include "desktop/clsPictureBox.h"
#include "tests/monitors/monitor_window.h"

namespace vk {
namespace {

class MonitorWindows : public vktest::MonitorWindowTest {};

TEST_F(MonitorWindows, TheFirstLayoutDraws) {
  for (const auto kind : {MonitorKind::kWave, MonitorKind::kBar}) {
    auto* wave = vktest::control<clsPictureBox>(open(kind), "picWave");
    EXPECT_EQ(wave->grab().toImage().pixel(1, 1), qRgb(0x2F, 0x2F, 0x2F));
  }
}

/// No part of a control is cut off, and no two lie upon each other, at any size from half the
/// default on.
TEST_F(MonitorWindows, ControlsNeverOverlap) {
  for (const auto kind : {MonitorKind::kWave, MonitorKind::kBar}) {
    for (const double size : {0.5, 0.75, 1.0, 3.0}) {
      auto fields = monitorFields(kind, 0);
      fields.width = static_cast<int32_t>(6800 * size);
      fields.height = static_cast<int32_t>((kind == MonitorKind::kWave ? 2500 : 3500) * size);
      auto& form = open(kind);
      const auto all = form.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
      for (const auto* one : all) {
        if (!one->isVisible() || one->objectName() == "picWaveSub") continue;
        EXPECT_TRUE(form.rect().contains(one->geometry())) << one->objectName().toStdString();
        for (const auto* other : all) {
          const bool apart =
              one == other || !other->isVisible() || !one->geometry().intersects(other->geometry());
          EXPECT_TRUE(apart) << one->objectName().toStdString() << " "
                             << other->objectName().toStdString() << " " << size;
        }
      }
      form.unload();
      desk.doEvents();
    }
  }
}

TEST_F(MonitorWindows, WithoutAStoredPlaceNoneHidesAnother) {
  gNumMoni[1].NUM_LEFT = 300 * 15;
  gNumMoni[1].NUM_TOP = 100 * 15;
  std::string places;
  const auto add = [&](MonitorKind kind, std::size_t index) {
    const QRect at = open(kind, index).parentWidget()->geometry();
    places += std::to_string(at.x()) + "," + std::to_string(at.y()) + " ";
  };
  for (const auto kind : {MonitorKind::kNumerical, MonitorKind::kWave, MonitorKind::kBar})
    add(kind, 0);
  EXPECT_EQ(places, "0,0 400,0 0,167 ");
  places.clear();
  add(MonitorKind::kNumerical, 1);
  EXPECT_EQ(places, "300,100 ") << "a stored place stays";
}

}  // namespace
}  // namespace vk
