// SPDX-License-Identifier: MIT
#include "storage/frmBin_CSV.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "desktop/formParts.h"
#include "desktop/qtText.h"
#include "storage/frmSelectFolder.h"
#include "storage/mdlFolderList.h"

namespace vk {

frmBin_CSV::frmBin_CSV(QWidget* parent) : QDialog(parent) {
  named(this, QStringLiteral("frmBin_CSV"));
  setWindowTitle(tr("Data file CSV conversion"));
  buildControls();
  buildLayout();
  csv_.fillDivisions();
  const QString folder = toQt(presentDefaultFolder());
  for (const FolderRow& row : folders_) row.txtFolder->setText(folder);
  fillList();
  connectControls();
  centreOnScreen(*this);
  lvwFileName_->setFocus();
}

frmBin_CSV::~frmBin_CSV() {
  // A shown window hides while it is taken down, and the line that loses the focus then speaks.
  folders_[0].txtFolder->disconnect(this);
}

void frmBin_CSV::buildControls() {
  folders_[0] = buildFolderRow(this, 0, tr("Folder to &read from"), tr("F&older..."));
  folders_[1] = buildFolderRow(this, 1, tr("Folder &to save in"), tr("&Folder..."));
  lvwFileName_ = buildFileList(this, tr("Data files in the folder"));
  mnuAllSelect_ = buildSelectMenu(this, [this](bool on) { checkAll(on); });
  cmdCSVSave_ = named(new QPushButton(tr("&Save"), this), QStringLiteral("cmdCSVSave"),
                      tr("Save the checked files as CSV"));
  cmdCSVSave_->setDefault(true);
  cmdCancel_ = named(new QPushButton(tr("&Close"), this), QStringLiteral("cmdCancel"));
}

void frmBin_CSV::buildLayout() {
  auto* files = new QVBoxLayout;
  files->setSpacing(10);
  files->addWidget(folders_[0].row);
  files->addWidget(captionOf(tr("Data f&iles in the folder"), lvwFileName_, this));
  files->addWidget(lvwFileName_, 1);
  auto* choices = new QVBoxLayout;
  choices->setSpacing(10);
  choices->addWidget(folders_[1].row);
  csv_.build(this, *choices);
  choices->addStretch();
  choices->addWidget(cmdCSVSave_, 0, Qt::AlignRight);
  layOutForm(this, nullptr, files, choices, progress_, cmdCancel_);
  tabThrough({folders_[0].txtFolder, folders_[0].cmdFolder, lvwFileName_, folders_[1].txtFolder,
              folders_[1].cmdFolder, csv_.optCoeff[0], csv_.optCoeff[1], csv_.chkDivision,
              csv_.cmbDivision, cmdCSVSave_, cmdCancel_});
}

void frmBin_CSV::connectControls() {
  connect(lvwFileName_, &QTreeWidget::customContextMenuRequested, this,
          &frmBin_CSV::lvwFileName_MouseUp);
  connect(cmdCSVSave_, &QPushButton::clicked, this, &frmBin_CSV::cmdCSVSave_Click);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmBin_CSV::cmdCancel_Click);
  connect(folders_[0].txtFolder, &QLineEdit::editingFinished, this,
          &frmBin_CSV::txtFolder_LostFocus);
  for (int i = 0; i < 2; ++i)
    connect(folders_[i].cmdFolder, &QPushButton::clicked, this, [this, i] { cmdFolder_Click(i); });
}

JobView frmBin_CSV::jobView() {
  JobView view = progress_.jobView();
  view.stopped = [this] { return stop_; };
  return view;
}

void frmBin_CSV::fillList() {
  takeChecks(*lvwFileName_, work_.files);
  listFolder(work_, fromQt(folders_[0].txtFolder->text()));
  lvwFileName_->clear();
  for (const CardEntry& entry : work_.files) addFileRow(*lvwFileName_, entry);
  showChecks(*lvwFileName_, work_.files, true);
  lvwFileName_->setCurrentItem(lvwFileName_->topLevelItem(0));
}

void frmBin_CSV::followTyping() {
  if (fromQt(folders_[0].txtFolder->text()) == work_.folder[0]) return;
  fillList();
  work_.typed = true;
}

void frmBin_CSV::txtFolder_LostFocus() {
  if (!busy_) followTyping();
}

void frmBin_CSV::cmdCancel_Click() {
  if (busy_) {
    stop_ = true;
  } else {
    reject();
  }
}

void frmBin_CSV::checkAll(bool on) {
  if (busy_) return;
  for (CardEntry& entry : work_.files) entry.checked = on;
  showChecks(*lvwFileName_, work_.files, true);
}

void frmBin_CSV::lvwFileName_MouseUp(const QPoint& position) {
  if (!busy_) mnuAllSelect_->popup(lvwFileName_->viewport()->mapToGlobal(position));
}

void frmBin_CSV::cmdFolder_Click(int index) {
  if (busy_) return;
  gFolderRole = index == 0 ? 0 : kFolderSave;
  frmSelectFolder(this).exec();
  folders_[index].txtFolder->setText(toQt(gDefaultFolder));
  if (index != 0) return;
  fillList();
  work_.typed = false;
}

void frmBin_CSV::cmdCSVSave_Click() {
  if (busy_) return;
  {
    const FlagGuard busy(busy_);
    stop_ = close_ = false;
    // The button may be pressed by its letter: the list has not followed the typing yet.
    followTyping();
    carryIn();
    const JobView view = jobView();
    if (!readyToConvert(work_, view)) return;
    setControlsEnabled(false);
    desktop().doEvents();
    if (convertCheckedFiles(work_, view) != kCardOk) progress_.clear();
    setControlsEnabled(true);
  }
  if (close_) QDialog::reject();
}

void frmBin_CSV::reject() {
  if (busy_) {
    stop_ = close_ = true;
  } else {
    QDialog::reject();
  }
}

void frmBin_CSV::carryIn() {
  work_.folder[1] = fromQt(folders_[1].txtFolder->text());
  work_.options = csv_.options();
  takeChecks(*lvwFileName_, work_.files);
}

void frmBin_CSV::setControlsEnabled(bool on) {
  for (const auto name : lockedControls(kTabCsv)) {
    if (auto* control = findChild<QWidget*>(toQt(name))) control->setEnabled(on);
  }
  lvwFileName_->setEnabled(on);
  // It gets the focus of what was locked, where a second Enter must not stop the work.
  cmdCancel_->setAutoDefault(on);
  cmdCancel_->setText(on ? tr("&Close") : tr("&Stop"));
  cmdCancel_->setEnabled(true);
  if (on) lvwFileName_->setFocus();
}

}  // namespace vk
