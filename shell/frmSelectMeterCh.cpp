// SPDX-License-Identifier: MIT
#include "shell/frmSelectMeterCh.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "desktop/qtText.h"
#include "recorder/mdlSelectMeter.h"

namespace vk {

frmSelectMeterCh::frmSelectMeterCh(bool check, QWidget* parent) : QDialog(parent) {
  named(this, QStringLiteral("frmSelectMeterCh"));
  setWindowTitle(toQt(kSelectCaption));
  cmbMeter_ = named(new QComboBox(this), QStringLiteral("cmbMeter"), tr("Meter"));
  for (const auto& text : selectMeterTexts(gSelMode)) cmbMeter_->addItem(toQt(text));
  cmbChannel_ = named(new QComboBox(this), QStringLiteral("cmbChannel"), tr("Channel"));
  for (const auto& text : selectChannelTexts(gSelMode)) cmbChannel_->addItem(toQt(text));
  cmdRun_ = named(new QPushButton(toQt(selectButtonText(gSelMode, check)), this),
                  QStringLiteral("cmdRun"));
  cmdRun_->setDefault(true);
  auto* cmdCancel = named(new QPushButton(tr("Cancel"), this), QStringLiteral("cmdCancel"));

  auto* form = new QFormLayout(this);
  form->setContentsMargins(16, 16, 16, 14);
  form->setVerticalSpacing(10);
  form->addRow(tr("&Meter"), cmbMeter_);
  form->addRow(tr("&Channel"), cmbChannel_);
  form->setRowVisible(cmbChannel_, cmbChannel_->count() > 0);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cmdRun_);
  buttons->addWidget(cmdCancel);
  form->addRow(buttons);
  setMinimumWidth(320);

  connect(cmdRun_, &QPushButton::clicked, this, &frmSelectMeterCh::cmdRun_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmSelectMeterCh::reject);
  connect(cmbMeter_, &QComboBox::currentIndexChanged, this, &frmSelectMeterCh::enableRun);
  connect(cmbChannel_, &QComboBox::currentIndexChanged, this, &frmSelectMeterCh::enableRun);
  enableRun();
  centreOnScreen(*this);
}

void frmSelectMeterCh::enableRun() {
  cmdRun_->setEnabled(
      selectReady(gSelMode, fromQt(cmbMeter_->currentText()), cmbChannel_->currentIndex()));
}

void frmSelectMeterCh::cmdRun_Click() {
  if (acceptSelection(fromQt(cmbMeter_->currentText()), cmbChannel_->currentIndex())) {
    accept();
    return;
  }
  cmbMeter_->setCurrentIndex(-1);
  cmbChannel_->setCurrentIndex(-1);
  cmbMeter_->setFocus();
}

void frmSelectMeterCh::reject() {
  cancelSelection();
  QDialog::reject();
}

}  // namespace vk
