// SPDX-License-Identifier: MIT
#include "app/program.h"

#include <QApplication>
#include <memory>

#include "desktop/clsQtDesktop.h"
#include "maintenance/frmVersionUp.h"
#include "shell/frmStart.h"
#include "shell/mdiMain.h"
#include "shell/mdlMain.h"

namespace vk {

int runProgram() {
  clsQtDesktop onQt;
  setDesktop(&onQt);
  std::unique_ptr<mdiMain> window;
  MainStages stages;
  stages.showStart = [] { frmStart().exec(); };
  stages.showMain = [&window] {
    window = std::make_unique<mdiMain>();
    window->show();
  };
  stages.showUpgrade = [] { frmVersionUp().exec(); };
  Main(stages);
  return 0;
}

}  // namespace vk
