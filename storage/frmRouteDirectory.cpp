// SPDX-License-Identifier: MIT
#include "storage/frmRouteDirectory.h"

#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedLayout>
#include <QTabBar>
#include <QTimer>
#include <QTreeWidget>

#include "base/mdlDataFolder.h"
#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "base/mdlText.h"
#include "desktop/frmStatusBar.h"
#include "desktop/qtText.h"
#include "link/mdlCardDirectory.h"
#include "recorder/mdlBoxTable.h"
#include "storage/frmSelectFolder.h"
#include "storage/frmSetFileSer.h"
#include "storage/mdlFolderList.h"
#include "storage/mdlNaming.h"
#include "storage/mdlWaveOpenRequest.h"

namespace vk {

frmRouteDirectory::frmRouteDirectory(int32_t serial, QWidget* parent) : QDialog(parent) {
  named(this, QStringLiteral("frmRouteDirectory"));
  setWindowTitle(tr("Read data from VK-480Q - %1").arg(toQt(serialText(serial))));
  reading_.serial = serial;
  reading_.temporaryFolder = tempFolder();
  buildList();
  buildTabs();
  buildLayout();
  auto* TmrRoute = named(new QTimer(this), QStringLiteral("TmrRoute"));
  TmrRoute->setInterval(100);
  connectControls();
  selectTab(kTabWave);
  centreOnScreen(*this);
}

frmRouteDirectory::~frmRouteDirectory() = default;

void frmRouteDirectory::connectControls() {
  connect(tbsSelect_, &QTabBar::currentChanged, this, &frmRouteDirectory::tbsSelect_Click);
  // The keyboard moves the selection without a click.
  connect(lvwFileName_, &QTreeWidget::currentItemChanged, this,
          &frmRouteDirectory::lvwFileName_ItemClick);
  connect(lvwFileName_, &QTreeWidget::itemClicked, this, &frmRouteDirectory::lvwFileName_ItemClick);
  connect(lvwFileName_, &QTreeWidget::customContextMenuRequested, this,
          &frmRouteDirectory::lvwFileName_MouseUp);
  connect(cmdRun_, &QPushButton::clicked, this, &frmRouteDirectory::cmdRun_Click);
  connect(cmdBinSave_, &QPushButton::clicked, this, &frmRouteDirectory::cmdBinSave_Click);
  connect(cmdCSVSave_, &QPushButton::clicked, this, &frmRouteDirectory::cmdCSVSave_Click);
  connect(cmdFileSerNameChange_, &QPushButton::clicked, this,
          &frmRouteDirectory::cmdFileSerNameChange_Click);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
  for (int i = 0; i < 2; ++i)
    connect(cmdFolder_[i], &QPushButton::clicked, this, [this, i] { cmdFolder_Click(i); });
}

std::vector<CardEntry> frmRouteDirectory::confirmFiles() {
  // The directory is copied: a yield lets other work through.
  const std::vector<CardFile> directory = gCardDirectory;
  if (directory.empty()) return {};
  const FlagGuard busy(busy_);
  frmStatusBar status(tr("Confirm Headder File"), parentWidget());
  status.setLines(tr("Confirming header file of instrument."));
  status.open();
  return confirmHeaders(reading_.serial, directory, status.jobView());
}

bool frmRouteDirectory::openCard() {
  reading_.tab = kTabWave;
  reading_.lastClicked.clear();
  reading_.files = confirmFiles();
  lvwFileName_->clear();
  for (const CardEntry& entry : reading_.files) addFileRow(*lvwFileName_, entry);
  if (reading_.files.empty()) {
    setControlsEnabled(emptyCardControls(), false);
    txtHead_->setPlaceholderText(tr("The card holds no data file."));
    return false;
  }
  csv_.fillDivisions();
  const QString folder = toQt(settleDefaultFolder());
  for (auto* box : txtFolder_) box->setText(folder);
  selectTab(reading_.tab);
  lvwFileName_->setCurrentItem(lvwFileName_->topLevelItem(0));
  lvwFileName_->setFocus();
  txtHead_->setPlaceholderText(tr("Click a file to see its header."));
  answering_ = true;
  return true;
}

void frmRouteDirectory::showRows() {
  for (int row = 0; row < lvwFileName_->topLevelItemCount(); ++row) {
    const CardEntry& entry = reading_.files[row];
    auto* item = lvwFileName_->topLevelItem(row);
    item->setText(0, toQt(entry.rowText));
    item->setText(4, toQt(entry.seriesText));
  }
}

void frmRouteDirectory::tbsSelect_Click(int index) {
  selectTab(index + 1);
}

void frmRouteDirectory::selectTab(int tab) {
  carryIn();
  selectCardTab(reading_, tab);
  const CardTabView view = cardTabView(tab, reading_.files.size());
  panels_->setCurrentWidget(findChild<QWidget*>(toQt(view.panel)));
  if (view.clearHead) txtHead_->clear();
  if (view.folderBox >= 0) txtFolder_[view.folderBox]->setText(toQt(gDefaultFolder));
  cmdRun_->setEnabled(view.canRun);
  cmdFileSerNameChange_->setVisible(view.checkBoxes);
  QPushButton* const main[] = {cmdRun_, cmdBinSave_, cmdCSVSave_};
  main[tab - 1]->setDefault(true);
  showRows();
  showChecks(*lvwFileName_, reading_.files, view.checkBoxes);
}

void frmRouteDirectory::lvwFileName_ItemClick(QTreeWidgetItem* item) {
  const int row = lvwFileName_->indexOfTopLevelItem(item);
  if (row < 0 || busy_ || !answering_) return;
  const SelectedHeader header = [&] {
    const FlagGuard busy(busy_);
    return clickCardRow(reading_, row);
  }();
  if (!header.shown) return;
  txtHead_->setPlainText(toQt(header.text));
  cmdRun_->setEnabled(true);
}

void frmRouteDirectory::lvwFileName_MouseUp(const QPoint& position) {
  if (busy_ || !cardTabView(reading_.tab, reading_.files.size()).checkBoxes) return;
  mnuAllSelect_->popup(lvwFileName_->viewport()->mapToGlobal(position));
}

void frmRouteDirectory::checkAll(bool on) {
  if (busy_) return;
  checkAllRows(reading_, on);
  showChecks(*lvwFileName_, reading_.files,
             cardTabView(reading_.tab, reading_.files.size()).checkBoxes);
}

void frmRouteDirectory::cmdRun_Click() {
  const int row = lvwFileName_->indexOfTopLevelItem(lvwFileName_->currentItem());
  if (row < 0 || busy_) return;
  {
    const FlagGuard busy(busy_);
    carryIn();
    lockControls();
    desktop().doEvents();
    const CardFetched fetched =
        readDataFile({reading_.serial, reading_.files[row], kReadToView, reading_.temporaryFolder},
                     progress_.jobView());
    if (fetched.result == kCardOk) {
      resetWaveOpenRequest();
      waveOpenRequest = waveRequestOf(fetched);
    }
    unlockControls();
    desktop().doEvents();
    if (fetched.result != kCardOk) return;
  }
  waveRequestSet = 1;
  accept();
}

void frmRouteDirectory::cmdBinSave_Click() {
  save(kSaveBinary);
}

void frmRouteDirectory::cmdCSVSave_Click() {
  save(kSaveCsv);
}

void frmRouteDirectory::save(SaveKind kind) {
  if (busy_) return;
  const FlagGuard busy(busy_);
  carryIn();
  lockControls();
  desktop().doEvents();
  if (saveCheckedFiles(reading_, kind, progress_.jobView()).any) progress_.clear();
  unlockControls();
  desktop().doEvents();
}

void frmRouteDirectory::cmdFolder_Click(int index) {
  if (busy_) return;
  gFolderRole = kFolderSave;
  frmSelectFolder(this).exec();
  txtFolder_[index]->setText(toQt(gDefaultFolder));
}

void frmRouteDirectory::cmdFileSerNameChange_Click() {
  if (busy_) return;
  carryIn();
  NamingList list;
  if (!prepareNaming(reading_, list)) return;
  frmSetFileSer(list, reading_, this).exec();
  showSaveNames(reading_);
  showRows();
}

void frmRouteDirectory::reject() {
  if (!busy_) QDialog::reject();
}

void frmRouteDirectory::carryIn() {
  for (std::size_t i = 0; i < reading_.folder.size(); ++i)
    reading_.folder[i] = fromQt(txtFolder_[i]->text());
  reading_.csv = csv_.options();
  // Without check boxes, on the wave tab, the marks of the saving tabs are kept.
  takeChecks(*lvwFileName_, reading_.files);
}

void frmRouteDirectory::setControlsEnabled(const ControlNames& names, bool on) {
  for (const auto name : names) {
    if (auto* control = findChild<QWidget*>(toQt(name))) control->setEnabled(on);
  }
}

void frmRouteDirectory::lockControls() {
  setControlsEnabled(lockedControls(reading_.tab), false);
  // A row or a tab chosen now would start a second exchange or change the names under way.
  tbsSelect_->setEnabled(false);
  lvwFileName_->setEnabled(false);
}

void frmRouteDirectory::unlockControls() {
  setControlsEnabled(lockedControls(reading_.tab), true);
  tbsSelect_->setEnabled(true);
  lvwFileName_->setEnabled(true);
  lvwFileName_->setFocus();
}

}  // namespace vk
