// SPDX-License-Identifier: MIT
#include "storage/frmSetFileSer.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdlTwips.h"
#include "desktop/formParts.h"
#include "desktop/qtText.h"
#include "storage/mdlCardReading.h"
#include "storage/mdlNaming.h"

namespace vk {

frmSetFileSer::frmSetFileSer(NamingList& list, CardReading& reading, QWidget* parent)
    : QDialog(parent), list_(list), reading_(reading) {
  named(this, QStringLiteral("frmSetFileSer"));
  setWindowTitle(tr("File name and series name"));
  buildControls();
  buildLayout();
  connectControls();
  showRows();
  lvwFileName_->setCurrentItem(lvwFileName_->topLevelItem(0));
  takeRow(0);
  centreOnScreen(*this);
}

void frmSetFileSer::buildControls() {
  lvwFileName_ =
      named(new QTreeWidget(this), QStringLiteral("lvwFileName"), tr("Files to be saved"));
  lvwFileName_->setRootIsDecorated(false);
  lvwFileName_->setUniformRowHeights(true);
  lvwFileName_->setColumnCount(kNamingColumns.size());
  for (std::size_t i = 0; i < kNamingColumns.size(); ++i) {
    const int column = i;
    lvwFileName_->headerItem()->setText(column, toQt(kNamingColumns[i].title));
    lvwFileName_->setColumnWidth(column, toPixels(kNamingColumns[i].twips));
  }
  txtFileName_ = named(new QLineEdit(this), QStringLiteral("txtFileName"), tr("File name"));
  txtSerName_ = named(new QLineEdit(this), QStringLiteral("txtSerName"), tr("Series name"));
  txtAutoFileName_ = named(new QLineEdit(this), QStringLiteral("txtAutoFileName"),
                           tr("Text in front of all file names"));
  txtAutoSerName_ =
      named(new QLineEdit(this), QStringLiteral("txtAutoSerName"), tr("Series name of all files"));
  cmdFAutoSet_ =
      named(new QPushButton(tr("&Auto change all file name"), this), QStringLiteral("cmdFAutoSet"));
  cmdSAutoSet_ = named(new QPushButton(tr("A&uto change all series name"), this),
                       QStringLiteral("cmdSAutoSet"));
  cmdSet_ = named(new QPushButton(tr("Se&t"), this), QStringLiteral("cmdSet"));
  cmdCancel_ = named(new QPushButton(tr("Cancel"), this), QStringLiteral("cmdCancel"));
  // Enter belongs to the edit boxes.
  for (auto* button : {cmdFAutoSet_, cmdSAutoSet_, cmdSet_, cmdCancel_})
    button->setAutoDefault(false);
}

void frmSetFileSer::buildLayout() {
  auto* one = new QGroupBox(tr("Selected file"), this);
  auto* oneGrid = new QGridLayout(one);
  oneGrid->addWidget(captionOf(tr("File &name"), txtFileName_, one), 0, 0);
  oneGrid->addWidget(txtFileName_, 0, 1);
  oneGrid->addWidget(new QLabel(QStringLiteral(".DAT"), one), 0, 2);
  oneGrid->addWidget(captionOf(tr("&Series name"), txtSerName_, one), 1, 0);
  oneGrid->addWidget(txtSerName_, 1, 1, 1, 2);
  oneGrid->addWidget(new QLabel(tr("(Changed by Enter key)"), one), 2, 1, 1, 2);
  oneGrid->setColumnStretch(1, 1);

  auto* all = new QGroupBox(tr("All files"), this);
  auto* allGrid = new QGridLayout(all);
  allGrid->addWidget(txtAutoFileName_, 0, 0);
  allGrid->addWidget(new QLabel(tr("+ old file name.DAT"), all), 0, 1);
  allGrid->addWidget(cmdFAutoSet_, 0, 2);
  allGrid->addWidget(txtAutoSerName_, 1, 0, 1, 2);
  allGrid->addWidget(cmdSAutoSet_, 1, 2);
  allGrid->setColumnStretch(0, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdSet_);
  buttons->addWidget(cmdCancel_);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(14, 14, 14, 14);
  lines->setSpacing(10);
  lines->addWidget(lvwFileName_, 1);
  lines->addWidget(one);
  lines->addWidget(all);
  lines->addLayout(buttons);
  tabThrough({lvwFileName_, txtFileName_, txtSerName_, txtAutoFileName_, cmdFAutoSet_,
              txtAutoSerName_, cmdSAutoSet_, cmdSet_, cmdCancel_});
}

void frmSetFileSer::connectControls() {
  connect(lvwFileName_, &QTreeWidget::currentItemChanged, this,
          &frmSetFileSer::lvwFileName_ItemClick);
  connect(lvwFileName_, &QTreeWidget::itemClicked, this, &frmSetFileSer::lvwFileName_ItemClick);
  connect(txtFileName_, &QLineEdit::returnPressed, this, &frmSetFileSer::txtFileName_KeyPress);
  connect(txtSerName_, &QLineEdit::returnPressed, this, &frmSetFileSer::txtSerName_KeyPress);
  connect(cmdFAutoSet_, &QPushButton::clicked, this, &frmSetFileSer::cmdFAutoSet_Click);
  connect(cmdSAutoSet_, &QPushButton::clicked, this, &frmSetFileSer::cmdSAutoSet_Click);
  connect(cmdSet_, &QPushButton::clicked, this, &frmSetFileSer::cmdSet_Click);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSetFileSer::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (activated_) return;
  activated_ = true;
  activateNaming(list_);
  cmdSAutoSet_->setEnabled(canSetAllSeries(list_));
}

void frmSetFileSer::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) return QDialog::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

void frmSetFileSer::showRows() {
  while (lvwFileName_->topLevelItemCount() < static_cast<int>(list_.rows.size()))
    lvwFileName_->addTopLevelItem(new QTreeWidgetItem);
  for (std::size_t row = 0; row < list_.rows.size(); ++row) {
    auto* item = lvwFileName_->topLevelItem(row);
    item->setText(0, toQt(list_.rows[row].fileName));
    item->setText(1, toQt(list_.rows[row].series));
  }
}

void frmSetFileSer::takeRow(int row) {
  if (row < 0) return;
  const NamingEdit edit = selectNamingRow(list_, row);
  txtFileName_->setText(toQt(edit.name));
  if (!edit.series.empty()) txtSerName_->setText(toQt(edit.series));
}

void frmSetFileSer::apply(bool (*rule)(NamingList&, std::string_view), const QLineEdit& box) {
  if (rule(list_, fromQt(box.text()))) showRows();
}

void frmSetFileSer::lvwFileName_ItemClick(QTreeWidgetItem* item) {
  takeRow(lvwFileName_->indexOfTopLevelItem(item));
}

void frmSetFileSer::txtFileName_KeyPress() {
  apply(enterFileName, *txtFileName_);
}

void frmSetFileSer::txtSerName_KeyPress() {
  apply(enterSeriesText, *txtSerName_);
}

void frmSetFileSer::cmdFAutoSet_Click() {
  apply(setAllFileNames, *txtAutoFileName_);
}

void frmSetFileSer::cmdSAutoSet_Click() {
  apply(setAllSeries, *txtAutoSerName_);
}

void frmSetFileSer::cmdSet_Click() {
  copyNamesBack(list_, reading_);
  accept();
}

}  // namespace vk
