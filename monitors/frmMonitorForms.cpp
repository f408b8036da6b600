// SPDX-License-Identifier: MIT
#include "monitors/frmMonitorForms.h"

#include <QtGlobal>
#include <algorithm>
#include <iterator>

#include "monitors/frmMoniBar.h"
#include "monitors/frmMoniBarSet.h"
#include "monitors/frmMoniCircle.h"
#include "monitors/frmMoniCircleSet.h"
#include "monitors/frmMoniNum.h"
#include "monitors/frmMoniNumSet.h"
#include "monitors/frmMoniWavSet.h"
#include "monitors/frmMoniWave.h"
#include "monitors/frmMoniX_Y.h"
#include "monitors/frmMoniX_YSet.h"

namespace vk {

namespace {

template <typename Form>
frmMonitor* window() {
  return new Form;
}
template <typename Form>
frmMonitorSetting* dialog(QWidget* parent) {
  return new Form(parent);
}

constexpr MonitorForm kForms[] = {
    {MonitorKind::kNumerical, window<frmMoniNum>, dialog<frmMoniNumSet>, "fraNumber", "lblNumCap",
     "chkNumMoni", QT_TRANSLATE_NOOP("vk::frmSetMonitor", "Numerical monitor"), 8, 0, 0, 2},
    {MonitorKind::kWave, window<frmMoniWave>, dialog<frmMoniWavSet>, "fraWave", "lblWaveCap",
     "chkWaveMoni", QT_TRANSLATE_NOOP("vk::frmSetMonitor", "Wave monitor"), 4, 0, 1},
    {MonitorKind::kXY, window<frmMoniX_Y>, dialog<frmMoniX_YSet>, "fraX_Y", "lblXYCap",
     "chkX_YMoni", QT_TRANSLATE_NOOP("vk::frmSetMonitor", "X-Y monitor"), 2, 1, 1},
    {MonitorKind::kBar, window<frmMoniBar>, dialog<frmMoniBarSet>, "fraBar", "lblBarCap",
     "chkBarMoni", QT_TRANSLATE_NOOP("vk::frmSetMonitor", "Bar monitor"), 2, 1, 2},
    {MonitorKind::kCircle, window<frmMoniCircle>, dialog<frmMoniCircleSet>, "fraCircle",
     "lblCircleCap", "chkCircleMoni", QT_TRANSLATE_NOOP("vk::frmSetMonitor", "Circle monitor"), 4,
     0, 2},
};
static_assert(std::size(kForms) == kMonitorRows.size(), "every kind has its forms");

}  // namespace

const MonitorForm& monitorForm(MonitorKind kind) {
  return *std::ranges::find(kForms, kind, &MonitorForm::kind);
}

}  // namespace vk
