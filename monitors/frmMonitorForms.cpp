// SPDX-License-Identifier: MIT
// Which form belongs to which kind.
#include "monitors/frmMoniBar.h"
#include "monitors/frmMoniCircle.h"
#include "monitors/frmMoniNum.h"
#include "monitors/frmMoniWave.h"
#include "monitors/frmMoniX_Y.h"
#include "monitors/frmMonitor.h"

namespace vk {

frmMonitor* newMonitorForm(MonitorKind kind) {
  switch (kind) {
    case MonitorKind::kNumerical:
      return new frmMoniNum;
    case MonitorKind::kWave:
      return new frmMoniWave;
    case MonitorKind::kXY:
      return new frmMoniX_Y;
    case MonitorKind::kBar:
      return new frmMoniBar;
    case MonitorKind::kCircle:
      return new frmMoniCircle;
  }
  return nullptr;
}

}  // namespace vk
