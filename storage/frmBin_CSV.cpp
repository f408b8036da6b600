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
#include "desktop/qtText.h"
#include "storage/frmFormParts.h"
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
  progress_.connectTo(work_.view);
  work_.view.stopped = [this] { return stop_; };
  connect(lvwFileName_, &QTreeWidget::customContextMenuRequested, this, &frmBin_CSV::openMenu);
  connect(cmdCSVSave_, &QPushButton::clicked, this, &frmBin_CSV::convert);
  connect(cmdCancel_, &QPushButton::clicked, this, [this] {
    if (busy_) {
      stop_ = true;
    } else {
      reject();
    }
  });
  // A folder typed in is listed as well.
  connect(folders_[0].txtFolder, &QLineEdit::editingFinished, this, [this] {
    if (!busy_ && fromQt(folders_[0].txtFolder->text()) != work_.folder[0]) fillList();
  });
  for (int i = 0; i < 2; ++i)
    connect(folders_[i].cmdFolder, &QPushButton::clicked, this, [this, i] { pickFolder(i); });
}

void frmBin_CSV::fillList() {
  work_.folder[0] = fromQt(folders_[0].txtFolder->text());
  work_.files = recordingsIn(work_.folder[0]);
  lvwFileName_->clear();
  for (const CardEntry& entry : work_.files) addFileRow(*lvwFileName_, entry);
  showChecks(*lvwFileName_, work_.files, true);
  lvwFileName_->setCurrentItem(lvwFileName_->topLevelItem(0));
}

void frmBin_CSV::checkAll(bool on) {
  if (busy_) return;
  for (CardEntry& entry : work_.files) entry.checked = on;
  showChecks(*lvwFileName_, work_.files, true);
}

void frmBin_CSV::openMenu(const QPoint& position) {
  if (!busy_) mnuAllSelect_->popup(lvwFileName_->viewport()->mapToGlobal(position));
}

void frmBin_CSV::pickFolder(int index) {
  if (busy_) return;
  gFolderRole = index == 0 ? 0 : kFolderSave;
  frmSelectFolder(this).exec();
  folders_[index].txtFolder->setText(toQt(gDefaultFolder));
  if (index == 0) fillList();
}

void frmBin_CSV::convert() {
  if (busy_) return;
  // A folder may be typed and the button be pressed by its letter: the list has not followed yet.
  if (fromQt(folders_[0].txtFolder->text()) != work_.folder[0]) {
    fillList();
    return;
  }
  {
    const FlagGuard busy(busy_);
    stop_ = close_ = false;
    carryIn();
    if (!readyToConvert(work_)) return;
    setControlsEnabled(false);
    desktop().doEvents();
    static_cast<void>(convertCheckedFiles(work_));
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
