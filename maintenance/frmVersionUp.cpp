// SPDX-License-Identifier: MIT
#include "maintenance/frmVersionUp.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "base/mdlGuard.h"
#include "desktop/qtText.h"
#include "desktop/uiIcons.h"

namespace vk {

frmVersionUp::frmVersionUp() {
  named(this, QStringLiteral("frmVersionUp"));
  setWindowTitle(tr("VK-480Q - Version Up -"));
  setWindowIcon(uiIcon(UiIcon::kProgram));
  auto* icon = new QLabel(this);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(40, 40));
  lblMessage_ = named(new QLabel(this), QStringLiteral("lblMessage"));
  lblMessage_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblProgress_ = named(new QLabel(this), QStringLiteral("lblProgress"));
  cmdNext_ = named(new QPushButton(this), QStringLiteral("cmdNext"));
  cmdNext_->setDefault(true);
  cmdCancel_ = named(new QPushButton(tr("Cancel"), this), QStringLiteral("cmdCancel"));

  auto* row = new QHBoxLayout;
  row->addWidget(icon, 0, Qt::AlignTop);
  row->addSpacing(10);
  row->addWidget(lblMessage_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(lblProgress_, 1);
  buttons->addWidget(cmdNext_);
  buttons->addWidget(cmdCancel_);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(16, 16, 16, 14);
  lines->addLayout(row, 1);
  lines->addSpacing(10);
  lines->addLayout(buttons);
  setMinimumSize(480, 230);

  connect(cmdNext_, &QPushButton::clicked, this, &frmVersionUp::cmdNext_Click);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmVersionUp::reject);
  beginUpgrade(upgrade_);
  showStep();
  centreOnScreen(*this);
}

JobView frmVersionUp::jobView() {
  return {[this](const std::string& label, const std::string& progress) {
            lblMessage_->setText(toQt(label));
            lblProgress_->setText(toQt(progress));
            showNow(*this);
          },
          {},
          {}};
}

void frmVersionUp::cmdNext_Click() {
  if (transferring_) return;
  const FlagGuard busy(transferring_);
  const bool running = upgrade_.step == UpgradeStep::kReady;
  cmdNext_->setEnabled(!running);
  cmdCancel_->setEnabled(!running);
  if (nextUpgradeStep(upgrade_, jobView())) {
    accept();
    return;
  }
  showStep();
}

void frmVersionUp::showStep() {
  const bool failed = upgrade_.step == UpgradeStep::kFailed;
  lblMessage_->setText(toQt(upgrade_.message));
  lblProgress_->clear();
  cmdNext_->setText(toQt(upgradeText(upgrade_.step).button));
  // After a failure the whole upgrade has to be started anew; the form can only be left.
  cmdNext_->setEnabled(!failed);
  cmdCancel_->setEnabled(upgrade_.step != UpgradeStep::kFinished);
}

void frmVersionUp::reject() {
  if (!transferring_) QDialog::reject();
}

}  // namespace vk
