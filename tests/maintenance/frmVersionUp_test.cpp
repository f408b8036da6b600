// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "maintenance/frmVersionUp.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace vktest {
namespace {

using frmVersionUpTest = BoxWindowTest;

TEST_F(frmVersionUpTest, WritesStepByStepAndAfterAFailureItCanOnlyBeLeft) {
  for (const bool fails : {true, false}) {
    bench.bus.rig.recorders.clear();
    connect("[box 4800137]\nupgrade_mode = yes\n");
    vk::frmVersionUp form;
    form.show();
    auto* next = control<QPushButton>(form, "cmdNext");
    const auto* label = control<QLabel>(form, "lblMessage");
    EXPECT_EQ(form.windowTitle(), "VK-480Q - Version Up -");
    EXPECT_TRUE(label->text().contains("Upgrade is possible only when one unit is connected."));
    const std::string program = desk.data.path().toStdString() + "/new.prg";
    std::ofstream(program, std::ios::binary) << std::string(393216, 'p');
    desk.files = {program};
    next->click();
    EXPECT_EQ(desk.takeLog(), "file[File designation]\n");
    EXPECT_EQ(label->text() + next->text(),
              "Program file has been read.\nPush the executive button when you do an upgrade.Run");
    if (fails) bench.box(0).faults.add({vksim::FaultKind::kError, "PWE", 38, 1});
    next->click();
    EXPECT_EQ(label->text(),
              fails ? "Program command error has occurred.\nVK-480Q is not upgraded."
                    : "Upgrade has been finished properly.\nTurn on the power of VK-480Q again.");
    EXPECT_EQ(next->text(), fails ? "Run" : "finish");
    auto* cancel = control<QPushButton>(form, "cmdCancel");
    EXPECT_TRUE(next->isEnabled() != fails && cancel->isEnabled() == fails);
    (fails ? cancel : next)->click();
    EXPECT_FALSE(form.isVisible());
  }
}

}  // namespace
}  // namespace vktest
