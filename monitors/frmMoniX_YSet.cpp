// SPDX-License-Identifier: MIT
#include "monitors/frmMoniX_YSet.h"

#include <QFormLayout>

#include "desktop/qtText.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

frmMoniX_YSet::frmMoniX_YSet(QWidget* parent)
    : frmMonitorSetting(MonitorKind::kXY, "frmMoniX_YSet", tr("X-Y monitor setting"), parent) {
  auto& records = gXYMoni;
  using Rec = XYMonitorRec;
  addCaption(addFrame(tr("Basic setting"), 0, 0));
  const QString titles[kXYAxes] = {tr("Y_setting"), tr("X_setting")};
  for (int i = 0; i < int{kXYAxes}; ++i) {
    const std::size_t axis = i;
    auto* form = addFrame(titles[axis], 1 + i, 0);
    addSource(form, axis);
    addScale(form, tr("Scale[/div]"), elementName("cmbScale", i), moniFullScale,
             field(records, &Rec::XY_FULL, axis));
  }
  auto* display = addFrame(tr("Display setting"), 0, 1, 1, 3);
  addColour(display, tr("&Back color"), 0, field(records, &Rec::XY_BACK));
  addColour(display, tr("&Fore color"), 1, field(records, &Rec::XY_FORE));
  addColour(display, tr("&Line(base)"), 4, field(records, &Rec::XY_GND));
  addColour(display, tr("L&ine(sub)"), 5, field(records, &Rec::XY_GRID));
  addColour(display, tr("P&ointer color"), 6, field(records, &Rec::XY_POINT));

  auto* abnormal = addHiddenFrame();
  addCheck(abnormal->parentWidget(), kLone, field(records, &Rec::XY_CVAL_ONOFF));
  for (int i = 0; i < int{kXYAxes}; ++i) {
    const std::size_t axis = i;
    addHiddenLimits(abnormal, i, field(records, &Rec::XY_CVAL_UP, axis),
                    field(records, &Rec::XY_CVALDOWN, axis));
  }
  addColour(abnormal, {}, 2, field(records, &Rec::XY_C_BACK));
  addColour(abnormal, {}, 3, field(records, &Rec::XY_C_FORE));
  addColour(abnormal, {}, 7, field(records, &Rec::XY_C_POINT));
  addButtons();
}

}  // namespace vk
