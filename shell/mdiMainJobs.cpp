// SPDX-License-Identifier: MIT
// The menu items of the main window that act on a box or on stored data: each chooses its box,
// keeps the status cycle still and opens a dialog or runs a job.
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimer>

#include "base/clsDesktop.h"
#include "conditions/frmList.h"
#include "conditions/frmSetting.h"
#include "desktop/clsTimerPause.h"
#include "desktop/frmStatusBar.h"
#include "desktop/qtText.h"
#include "link/mdlUSBCommand.h"
#include "maintenance/frmCal.h"
#include "maintenance/frmDataTime.h"
#include "maintenance/mdlBalance.h"
#include "monitors/frmSetMonitor.h"
#include "monitors/mdlMonitorCycle.h"
#include "monitors/mdlMonitorSelection.h"
#include "recorder/mdlSelectMeter.h"
#include "shell/frmSelectMeterCh.h"
#include "shell/mdiMain.h"
#include "storage/frmBin_CSV.h"
#include "storage/frmRouteDirectory.h"
#include "storage/mdlTempFiles.h"
#include "storage/mdlWaveOpenRequest.h"

namespace vk {

bool mdiMain::selectBox(int32_t mode, bool check) {
  gSelMode = mode;
  frmSelectMeterCh dialog(check, this);
  dialog.exec();
  return boxSelected();
}

/// A dialog on one chosen box.
template <typename Dialog>
void mdiMain::openOnBox(int32_t mode) {
  const clsTimerPause pause(*tmrStatus_);
  if (selectBox(mode)) Dialog(gSelSerial, this).exec();
}

void mdiMain::mnuFMeterRead_Click() {
  const clsTimerPause pause(*tmrStatus_);
  if (!selectBox(kSelectBox)) return;
  const int32_t serial = gSelSerial;
  {
    frmStatusBar progress(tr("Read USB"), this);
    progress.setLines(tr("Reading the directory of the CF card."));
    progress.open();
    if (usbRTD(serial, progress.jobView()) != kUsbOk) return;
  }
  waveRequestSet = 0;
  frmRouteDirectory form(serial, this);
  form.openCard();
  form.exec();
  txtDelFile_->setPlainText(toQt(gTempFileList));
  if (waveRequestSet == 1) lblStatusTip_->setText(tr("Read; this version cannot show waves yet."));
}

void mdiMain::mnuFCSVChange_Click() {
  frmBin_CSV(this).exec();
}

void mdiMain::mnuEMonitorSet_Click() {
  frmSetMonitor(this).exec();
  applyMonitorSelection();
}

void mdiMain::mnuEMeasureSet_Click() {
  selectBox(kSelectBox);
  // A row without a box opens the dialog as well: conditions can be prepared without one.
  if (openMeasureSetting(gSelSerial, this, *tmrStatus_)) refreshMonitorUnits();
}

void mdiMain::mnuETimeSet_Click() {
  openOnBox<frmDataTime>(kSelectConnected);
}

void mdiMain::mnuCCAL_Click() {
  openOnBox<frmCal>(kSelectConnected);
}

void mdiMain::mnuCSetList_Click() {
  openOnBox<frmList>(kSelectBox);
}

void mdiMain::mnuCBalance_Click() {
  const clsTimerPause pause(*tmrStatus_);
  selectBox(kSelectBoxAndChannel);
  if (gSelSerial == kSelectCancelled || gSelSerial == kNoSerial) return;
  const auto steps = balanceSteps(gSelSerial, gSelChannel);
  frmStatusBar window(tr("Balance"), this);
  window.open();
  runBalance(steps, window.jobView());
}

void mdiMain::mnuCCFinit_Click() {
  const clsTimerPause pause(*tmrStatus_);
  if (!selectBox(kSelectConnected) || !askCardInit(gSelSerial)) return;
  frmStatusBar window(tr("Initializing CF card"), this);
  window.open();
  runCardInit(gSelSerial, window.jobView());
}

}  // namespace vk
