// SPDX-License-Identifier: MIT
#include "monitors/frmMoniBarSet.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>

#include "desktop/qtText.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

frmMoniBarSet::frmMoniBarSet(QWidget* parent)
    : frmMonitorSetting(MonitorKind::kBar, "frmMoniBarSet", tr("Bar monitor setting"), parent) {
  auto& records = gBarMoni;
  using Rec = BarMonitorRec;
  addCaption(addFrame(tr("Basic setting"), 0, 0));
  auto* display = addFrame(tr("Display setting"), 0, 1);
  addColour(display, tr("&Back color"), 0, field(records, &Rec::BAR_BACK));
  addColour(display, tr("&Line(base)"), 1, field(records, &Rec::BAR_GND));
  addColour(display, tr("L&ine(sub)"), 2, field(records, &Rec::BAR_GRID));

  const QString titles[kBars] = {tr("1st setting"), tr("2nd setting"), tr("3rd setting"),
                                 tr("4th setting")};
  for (int i = 0; i < int{kBars}; ++i) {
    const std::size_t bar = i;
    auto* form = addFrame(titles[bar], 1 + i / 2, i % 2);
    addSource(form, bar);
    addScale(form, tr("Scale[/div]"), elementName("cmbYScale", i), moniFullScale,
             field(records, &Rec::BAR_FULL, bar));
    addColour(form, tr("Color"), 3 + i, field(records, &Rec::BAR_FORE, bar));
  }

  // Nothing binds these: the abnormal fields of a bar monitor stay as they are.
  auto* abnormal = addHiddenFrame();
  for (int i = 0; i < int{kBars}; ++i) {
    abnormal->addRow(named(new QCheckBox, elementName("chkCaution", i)));
    abnormal->addRow(named(new QLineEdit, elementName("txtUp", i)));
    abnormal->addRow(named(new QLineEdit, elementName("txtDown", i)));
  }
  addButtons();
}

}  // namespace vk
