// SPDX-License-Identifier: MIT
#include "monitors/frmSetMonitor.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "desktop/qtText.h"
#include "monitors/frmMonitorForms.h"
#include "monitors/mdlMonitorSelection.h"

namespace vk {

frmSetMonitor::frmSetMonitor(QWidget* parent) : QDialog(parent) {
  named(this, QStringLiteral("frmSetMonitor"));
  setWindowTitle(tr("Monitor setting"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 14, 16, 14);
  column->setSpacing(10);
  column->addWidget(
      named(new QLabel(tr("Check the monitor to display."), this), QStringLiteral("lblCap")));
  auto* grid = new QGridLayout;
  grid->setSpacing(10);
  // The keyboard goes down a column of groups, then to the next.
  auto kinds = kMonitorKinds;
  std::ranges::sort(kinds, {}, [](MonitorKind kind) {
    const auto& form = monitorForm(kind);
    return std::pair(form.column, form.row);
  });
  for (const auto kind : kinds) {
    const auto& form = monitorForm(kind);
    grid->addWidget(buildGroup(form), form.row, form.column, form.rows, 1);
  }
  column->addLayout(grid);

  auto* buttons = new QHBoxLayout;
  auto* cmdSet = named(new QPushButton(tr("&Set"), this), QStringLiteral("cmdSet"));
  cmdSet->setDefault(true);
  auto* cmdCancel = named(new QPushButton(tr("Cancel"), this), QStringLiteral("cmdCancel"));
  buttons->addStretch(1);
  buttons->addWidget(cmdSet);
  buttons->addWidget(cmdCancel);
  column->addLayout(buttons);
  connect(cmdSet, &QPushButton::clicked, this, &frmSetMonitor::cmdSet_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  gMonitorSelection = {};
  centreOnScreen(*this);
}

QGroupBox* frmSetMonitor::buildGroup(const MonitorForm& group) {
  const auto at = static_cast<std::size_t>(group.kind);
  // The blanks keep the place of the heading, which stands in bold on it.
  auto* frame = new QGroupBox(QString(16, u' '), this);
  named(frame, QString::fromLatin1(group.frame), tr(group.title));
  auto* grid = new QGridLayout(frame);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(4);
  auto* heading = named(new QLabel(tr(group.title) + QStringLiteral("  "), frame),
                        QString::fromLatin1(group.heading));
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  heading->adjustSize();
  const auto flags = monitorFlags();
  for (int i = 0; i < static_cast<int>(monitorCount(group.kind)); ++i) {
    auto* box = named(new QCheckBox(tr("monitor %1").arg(i + 1), frame), elementName(group.box, i),
                      tr("%1 %2").arg(tr(group.title)).arg(i + 1));
    box->setChecked(flags[at][i]);
    grid->addWidget(box, i % group.lines, i / group.lines);
    boxes_[at].push_back(box);
  }
  grid->setRowStretch(group.lines, 1);
  return frame;
}

void frmSetMonitor::cmdSet_Click() {
  for (std::size_t kind = 0; kind < boxes_.size(); ++kind) {
    for (std::size_t i = 0; i < boxes_[kind].size(); ++i)
      gMonitorSelection.ticked[kind][i] = boxes_[kind][i]->isChecked();
  }
  gMonitorSelection.accepted = true;
  accept();
}

void frmSetMonitor::reject() {
  gMonitorSelection.accepted = false;
  QDialog::reject();
}

}  // namespace vk
