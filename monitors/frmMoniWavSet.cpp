// SPDX-License-Identifier: MIT
#include "monitors/frmMoniWavSet.h"

#include <QFormLayout>

#include "recorder/mdlCodeTables.h"

namespace vk {

frmMoniWavSet::frmMoniWavSet(QWidget* parent)
    : frmMonitorSetting(MonitorKind::kWave, "frmMoniWavSet", tr("Wave monitor setting"), parent) {
  auto& records = gWaveMoni;
  using Rec = WaveMonitorRec;
  auto* basic = addFrame(tr("Basic setting"), 0, 0);
  addSource(basic);
  addScale(basic, tr("&Y_Scale[/div]"), QStringLiteral("cmbYScale"), moniFullScale,
           field(records, &Rec::WAV_FULL));
  addList(basic, tr("&X_Scale[/div]"), "cmbXScale", {moniSpeedName.begin(), moniSpeedName.end()},
          field(records, &Rec::WAV_SPEED));
  addCaption(basic);

  auto* display = addFrame(tr("Display setting"), 0, 1);
  addColour(display, tr("&Back color"), 0, field(records, &Rec::WAV_BACK));
  addColour(display, tr("&Fore color"), 1, field(records, &Rec::WAV_FORE));
  addColour(display, tr("&Line(base)"), 4, field(records, &Rec::WAV_GND));
  addColour(display, tr("L&ine(sub)"), 5, field(records, &Rec::WAV_GRID));

  auto* abnormal = addHiddenFrame();
  addCheck(abnormal->parentWidget(), kLone, field(records, &Rec::WAV_CVAL_ONOFF));
  addHiddenLimits(abnormal, kLone, field(records, &Rec::WAV_CVAL_UP),
                  field(records, &Rec::WAV_CVALDOWN));
  addColour(abnormal, {}, 2, field(records, &Rec::WAV_C_BACK));
  addColour(abnormal, {}, 3, field(records, &Rec::WAV_C_FORE));
  addButtons();
}

}  // namespace vk
