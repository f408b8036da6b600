// SPDX-License-Identifier: MIT
#include "maintenance/frmDataTime.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "base/mdlGuard.h"
#include "desktop/qtText.h"

namespace vk {

namespace {

constexpr int kPerRow = 3;

}  // namespace

frmDataTime::frmDataTime(int32_t serial, QWidget* parent) : QDialog(parent), serial_(serial) {
  named(this, QStringLiteral("frmDataTime"));
  setWindowTitle(toQt(kDateCaption));
  build();
  centreOnScreen(*this);
}

void frmDataTime::addBox(QGridLayout& grid, int box) {
  const std::size_t at = box;
  const QString text = toQt(kDateLabels[at]);
  auto* label = named(new QLabel(text, this), elementName("lblDate", box));
  auto* edit = named(new QLineEdit(this), elementName("txtDate", box), text);
  txtDate_[at] = edit;
  edit->setAlignment(Qt::AlignRight);
  edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("00000000")));
  edit->installEventFilter(this);
  label->setBuddy(edit);
  const int column = box % kPerRow * 2;
  grid.addWidget(edit, box / kPerRow, column);
  grid.addWidget(label, box / kPerRow, column + 1);
}

void frmDataTime::build() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(10);
  for (int box = 0; box < kDateBoxes; ++box) addBox(*grid, box);
  cmdSet_ = named(new QPushButton(tr("Set"), this), QStringLiteral("cmdSet"));
  cmdSet_->setDefault(true);
  auto* cmdCancel = named(new QPushButton(tr("Close"), this), QStringLiteral("cmdCancel"));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cmdSet_);
  buttons->addWidget(cmdCancel);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(16, 16, 16, 14);
  lines->addLayout(grid);
  lines->addStretch(1);
  lines->addSpacing(10);
  lines->addLayout(buttons);
  connect(cmdSet_, &QPushButton::clicked, this, &frmDataTime::cmdSet_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmDataTime::reject);
}

void frmDataTime::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (filled_) return;
  filled_ = true;
  const DateTexts now = dateTexts(desktop().now());
  for (std::size_t box = 0; box < now.size(); ++box) txtDate_[box]->setText(toQt(now[box]));
  select(0);
}

DateTexts frmDataTime::texts() const {
  DateTexts all;
  std::ranges::transform(txtDate_, all.begin(),
                         [](const QLineEdit* edit) { return fromQt(edit->text()); });
  return all;
}

bool frmDataTime::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const auto box = std::ranges::find(txtDate_, watched);
  if (box == txtDate_.end() || (key != Qt::Key_Return && key != Qt::Key_Enter)) {
    return QDialog::eventFilter(watched, event);
  }
  txtDate_KeyPress(box - txtDate_.begin());
  return true;  // or the key would press the default button
}

void frmDataTime::txtDate_KeyPress(int box) {
  if (busy_) return;
  const FlagGuard busy(busy_);
  select(acceptDateBox(texts(), box) ? box + 1 : box);
}

/// Behind the last box comes the button.
void frmDataTime::select(int box) {
  if (box == kDateBoxes) {
    cmdSet_->setFocus(Qt::TabFocusReason);
    return;
  }
  auto* edit = txtDate_[box];
  edit->setFocus(Qt::OtherFocusReason);
  edit->selectAll();
}

void frmDataTime::cmdSet_Click() {
  if (busy_) return;
  DateSent sent;
  {
    const FlagGuard busy(busy_);
    sent = sendDate(serial_, texts());
  }
  if (sent.badBox) {
    select(*sent.badBox);
  } else if (sent.result == 0) {
    accept();
  }
}

void frmDataTime::reject() {
  if (!busy_) QDialog::reject();
}

}  // namespace vk
