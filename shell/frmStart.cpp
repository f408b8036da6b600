// SPDX-License-Identifier: MIT
#include "shell/frmStart.h"

#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>
#include <iterator>

#include "base/clsDesktop.h"
#include "base/mdlGuard.h"
#include "base/mdlTwips.h"
#include "desktop/qtText.h"
#include "desktop/uiIcons.h"
#include "shell/mdlMain.h"

namespace vk {

LogBox logBoxOf(QPlainTextEdit& box) {
  box.clear();
  return [&box](const std::string& line) {
    box.moveCursor(QTextCursor::End);
    box.insertPlainText(toQt(line).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    box.ensureCursorVisible();
    showNow(box);
  };
}

frmStart::frmStart() {
  named(this, QStringLiteral("frmStart"));
  setWindowTitle(tr("VK-480Q　CONTROLLER - Norvane Keiki Co.,Ltd."));
  setWindowIcon(uiIcon(UiIcon::kProgram));
  build();
  tmrDateTime_ = named(new QTimer(this), QStringLiteral("tmrDateTime"));
  tmrDateTime_->setInterval(1000);
  connect(tmrDateTime_, &QTimer::timeout, this, &frmStart::tmrDateTime_Timer);
  connect(cmdSet_, &QPushButton::clicked, this, &frmStart::cmdSet_Click);
  connect(cmdOK_, &QPushButton::clicked, this, &frmStart::cmdOK_Click);
  lblSearch_->setText(tr("Searching for instruments..."));
  cmdOK_->setEnabled(false);
  cmdSet_->setEnabled(false);
  centreOnScreen(*this);
}

QLayout* frmStart::buildHead() {
  auto* title = new QLabel(tr("VK-480Q CONTROLLER"), this);
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  large.setBold(true);
  title->setFont(large);
  lblSearch_ = named(new QLabel(this), QStringLiteral("lblSearch"));
  auto* icon = new QLabel(this);
  icon->setPixmap(uiIcon(UiIcon::kProgram).pixmap(QSize(40, 40)));
  auto* words = new QVBoxLayout;
  words->setSpacing(2);
  words->addWidget(title);
  words->addWidget(lblSearch_);
  auto* head = new QHBoxLayout;
  head->addWidget(icon);
  head->addSpacing(8);
  head->addLayout(words, 1);
  return head;
}

void frmStart::build() {
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(16, 14, 16, 14);
  lines->setSpacing(10);
  lines->addLayout(buildHead());

  lvwCnnt240Q_ = named(new QTreeWidget(this), QStringLiteral("lvwCnnt240Q"), tr("Boxes found"));
  lvwCnnt240Q_->setHeaderLabels({tr("Ser.No"), tr("VK-480Q  Date-Time Setting")});
  lvwCnnt240Q_->header()->setStretchLastSection(false);
  lvwCnnt240Q_->setColumnWidth(0, toPixels(1900));
  lvwCnnt240Q_->setColumnWidth(1, toPixels(3900));
  lvwCnnt240Q_->setRootIsDecorated(false);
  lvwCnnt240Q_->setUniformRowHeights(true);
  lvwCnnt240Q_->setMinimumSize(toPixels(1900 + 3900) + 24, 150);
  lines->addWidget(lvwCnnt240Q_, 1);

  txtComment_ = named(new QPlainTextEdit(this), QStringLiteral("txtComment"), tr("Log"));
  txtComment_->setReadOnly(true);
  txtComment_->setTabChangesFocus(true);
  txtComment_->setMinimumHeight(230);
  lines->addWidget(txtComment_, 1);

  cmdSet_ = named(new QPushButton(tr("Time Setup"), this), QStringLiteral("cmdSet"));
  cmdSet_->setToolTip(tr("Gives the ticked boxes the date and time of this PC"));
  cmdSet_->setAutoDefault(false);
  cmdOK_ = named(new QPushButton(tr("OK"), this), QStringLiteral("cmdOK"));
  cmdOK_->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdSet_);
  buttons->addStretch(1);
  buttons->addWidget(cmdOK_);
  lines->addLayout(buttons);
}

void frmStart::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (activated_) return;
  activated_ = true;
  awaitExposure();
}

// The scan blocks; it begins when the form is on the screen, or after a while on a screen that does
// not tell.
void frmStart::awaitExposure() {
  constexpr int kLookMs = 5;
  constexpr int kLongestMs = 2000;
  waited_ += kLookMs;
  const bool exposed = windowHandle() && windowHandle()->isExposed();
  if (!exposed && waited_ < kLongestMs) {
    QTimer::singleShot(kLookMs, this, &frmStart::awaitExposure);
    return;
  }
  QTimer::singleShot(0, this, &frmStart::activate);
}

void frmStart::activate() {
  bool clocks = false;
  {
    const FlagGuard guard(searching_);
    repaint();
    desktop().doEvents();
    const HourglassGuard hourglass;
    clocks = activateStart(logBoxOf(*txtComment_), rows_);
    // What was typed or clicked meanwhile was meant for a form without a result.
    desktop().doEvents();
  }
  showRows();
  switch (rows_.size()) {
    case 0:
      lblSearch_->setText(tr("No instrument is ready for measurement."));
      break;
    case 1:
      lblSearch_->setText(tr("1 instrument is ready."));
      break;
    default:
      lblSearch_->setText(tr("%1 instruments are ready.").arg(rows_.size()));
  }
  cmdSet_->setEnabled(!rows_.empty());
  cmdOK_->setEnabled(true);
  cmdOK_->setFocus();
  if (clocks) tmrDateTime_->start();
}

void frmStart::cmdOK_Click() {
  gStartOK = 1;
  // After nine boxes the start mode, not the button, ends the program.
  tmrDateTime_->stop();
  accept();
}

// The close box and Escape; a running search is not left.
void frmStart::reject() {
  if (!searching_) QDialog::reject();
}

void frmStart::tmrDateTime_Timer() {
  readChecks();
  if (tickStartClocks(rows_)) showRows();
}

void frmStart::cmdSet_Click() {
  readChecks();
  const HourglassGuard hourglass;
  setStartClocks(rows_);
  showRows();
}

void frmStart::readChecks() {
  for (int i = 0; i < lvwCnnt240Q_->topLevelItemCount(); ++i) {
    rows_[i].ticked = lvwCnnt240Q_->topLevelItem(i)->checkState(0) == Qt::Checked;
  }
}

void frmStart::showRows() {
  while (lvwCnnt240Q_->topLevelItemCount() < ssize(rows_)) {
    auto* item = new QTreeWidgetItem(lvwCnnt240Q_);
    item->setCheckState(0, Qt::Unchecked);
  }
  for (int i = 0; i < ssize(rows_); ++i) {
    auto* item = lvwCnnt240Q_->topLevelItem(i);
    item->setText(0, toQt(rows_[i].serial));
    item->setText(1, toQt(rows_[i].clock));
  }
}

}  // namespace vk
