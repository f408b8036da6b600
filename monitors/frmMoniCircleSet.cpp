// SPDX-License-Identifier: MIT
#include "monitors/frmMoniCircleSet.h"

#include <QComboBox>
#include <QFormLayout>

#include "desktop/qtText.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

frmMoniCircleSet::frmMoniCircleSet(QWidget* parent)
    : frmMonitorSetting(MonitorKind::kCircle, "frmMoniCircleSet", tr("Circle monitor setting"),
                        parent) {
  auto& records = gCircleMoni;
  using Rec = CircleMonitorRec;
  auto* basic = addFrame(tr("Basic setting"), 0, 0);
  addSource(basic);
  plus_ = addScale(basic, tr("+S&cale"), elementName("cmbScale", 0), meterFullScale,
                   field(records, &Rec::CRL_FULL));
  minus_ = addDialStart(basic, tr("-Sc&ale"), elementName("cmbScale", 1), meterOffset,
                        field(records, &Rec::CRL_OFFSET));
  addCaption(basic);

  auto* display = addFrame(tr("Display setting"), 0, 1);
  addColour(display, tr("&Back color"), 0, field(records, &Rec::CRL_BACK));
  addColour(display, tr("&Fore color"), 1, field(records, &Rec::CRL_FORE));
  addColour(display, tr("&Line(base)"), 4, field(records, &Rec::CRL_GND));
  addColour(display, tr("L&ine(sub)"), 5, field(records, &Rec::CRL_GRID));

  auto* abnormal = addHiddenFrame();
  addCheck(abnormal->parentWidget(), kLone, field(records, &Rec::CRL_CVAL_ONOFF));
  addHiddenLimits(abnormal, kLone, field(records, &Rec::CRL_CVAL_UP),
                  field(records, &Rec::CRL_CVAL_DOWN));
  addColour(abnormal, {}, 2, field(records, &Rec::CRL_C_BACK));
  addColour(abnormal, {}, 3, field(records, &Rec::CRL_C_FORE));
  addButtons();
}

bool frmMoniCircleSet::entriesAgree() {
  return dialEndsDiffer(fromQt(plus_->currentText()), fromQt(minus_->currentText()));
}

}  // namespace vk
