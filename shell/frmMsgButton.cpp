// SPDX-License-Identifier: MIT
#include "shell/frmMsgButton.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/qtText.h"

namespace vk {

frmMsgButton::frmMsgButton(const QString& title, const QString& text, const QString& line,
                           const QString& button, QWidget* parent)
    : QDialog(parent) {
  named(this, QStringLiteral("frmMsgButton"));
  setWindowTitle(title);
  auto* icon = new QLabel(this);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(32, 32));
  auto* lblMain = named(new QLabel(text, this), QStringLiteral("lblMain"));
  auto* lblSub1 = named(new QLabel(line, this), QStringLiteral("lblSub1"));
  lblSub2_ = named(new QLabel(this), QStringLiteral("lblSub2"), tr("Seconds left"));
  auto* cmdClose = named(new QPushButton(button, this), QStringLiteral("cmdClose"));
  cmdClose->setDefault(true);
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);

  auto* words = new QVBoxLayout;
  words->addWidget(lblMain);
  words->addWidget(lblSub1);
  words->addWidget(lblSub2_);
  auto* row = new QHBoxLayout;
  row->addWidget(icon, 0, Qt::AlignTop);
  row->addSpacing(10);
  row->addLayout(words, 1);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(16, 16, 16, 14);
  lines->addLayout(row);
  lines->addSpacing(8);
  lines->addWidget(cmdClose, 0, Qt::AlignRight);

  timer2_ = named(new QTimer(this), QStringLiteral("Timer2"));
  timer2_->setInterval(kNoticeStepMs);
  connect(timer2_, &QTimer::timeout, this, &frmMsgButton::Timer2_Timer);
  auto* timer1 = named(new QTimer(this), QStringLiteral("Timer1"));
  timer1->setSingleShot(true);
  timer1->setInterval(kNoticeDelayMs);
  connect(timer1, &QTimer::timeout, timer2_, qOverload<>(&QTimer::start));
  timer1->start();
  setMinimumWidth(380);
}

void frmMsgButton::Timer2_Timer() {
  const bool goesOn = left_.tick();
  lblSub2_->setText(toQt(left_.text()));
  if (goesOn) return;
  timer2_->stop();
  accept();
}

}  // namespace vk
