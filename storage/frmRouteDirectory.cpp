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
#include "recorder/mdlBoxTable.h"
#include "storage/frmSelectFolder.h"
#include "storage/frmSetFileSer.h"
#include "storage/mdlFolderList.h"
#include "storage/mdlNaming.h"
#include "storage/mdlTempFiles.h"
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
  connectView();
  connectControls();
  selectTab(kTabWave);
  centreOnScreen(*this);
}

frmRouteDirectory::~frmRouteDirectory() = default;

void frmRouteDirectory::connectView() {
  progress_.connectTo(reading_.view);
  reading_.view.appendTempFile = [](const std::string& line) { gTempFileList += line; };
}

void frmRouteDirectory::connectControls() {
  connect(tbsSelect_, &QTabBar::currentChanged, this, [this](int index) { selectTab(index + 1); });
  // The keyboard moves the selection without a click.
  connect(lvwFileName_, &QTreeWidget::currentItemChanged, this, &frmRouteDirectory::clickRow);
  connect(lvwFileName_, &QTreeWidget::itemClicked, this, &frmRouteDirectory::clickRow);
  connect(lvwFileName_, &QTreeWidget::customContextMenuRequested, this,
          &frmRouteDirectory::openMenu);
  connect(cmdRun_, &QPushButton::clicked, this, &frmRouteDirectory::run);
  connect(cmdBinSave_, &QPushButton::clicked, this, [this] { save(kSaveBinary); });
  connect(cmdCSVSave_, &QPushButton::clicked, this, [this] { save(kSaveCsv); });
  connect(cmdFileSerNameChange_, &QPushButton::clicked, this, &frmRouteDirectory::changeNames);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
  for (int i = 0; i < 2; ++i)
    connect(cmdFolder_[i], &QPushButton::clicked, this, [this, i] { pickFolder(i); });
}

CardOpeningView frmRouteDirectory::openingView() {
  CardOpeningView view;
  view.showStatus = [this](const std::string& title, const std::string& text) {
    status_ = std::make_unique<frmStatusBar>(toQt(title), parentWidget());
    status_->setLines(toQt(text));
    status_->open();
  };
  view.setProgress = [this](double fraction) {
    if (status_) status_->setProgress(fraction);
  };
  view.addRow = [this](std::size_t row) { addRow(row); };
  view.closeStatus = [this] { status_.reset(); };
  return view;
}

bool frmRouteDirectory::openCard() {
  lvwFileName_->clear();
  const bool any = [this] {
    const FlagGuard busy(busy_);
    return vk::openCard(reading_, openingView());
  }();
  if (!any) {
    setControlsEnabled(emptyCardControls(), false);
    txtHead_->setPlaceholderText(tr("The card holds no data file."));
    return false;
  }
  csv_.fillDivisions();
  const QString folder = toQt(settleDefaultFolder());
  for (auto* box : txtFolder_) box->setText(folder);
  setControlsEnabled(lockedControls(kTabCsv), false);
  setControlsEnabled(unlockedControls(kTabCsv), true);
  selectTab(reading_.tab);
  lvwFileName_->setCurrentItem(lvwFileName_->topLevelItem(0));
  lvwFileName_->setFocus();
  txtHead_->setPlaceholderText(tr("Click a file to see its header."));
  answering_ = true;
  return true;
}

void frmRouteDirectory::addRow(std::size_t row) {
  addFileRow(*lvwFileName_, reading_.files[row]);
}

void frmRouteDirectory::showRows() {
  for (int row = 0; row < lvwFileName_->topLevelItemCount(); ++row) {
    const CardEntry& entry = reading_.files[static_cast<std::size_t>(row)];
    auto* item = lvwFileName_->topLevelItem(row);
    item->setText(0, toQt(entry.rowText));
    item->setText(4, toQt(entry.seriesText));
  }
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

void frmRouteDirectory::clickRow(QTreeWidgetItem* item) {
  const int row = lvwFileName_->indexOfTopLevelItem(item);
  if (row < 0 || busy_ || !answering_) return;
  const SelectedHeader header = [&] {
    const FlagGuard busy(busy_);
    return clickCardRow(reading_, static_cast<std::size_t>(row));
  }();
  if (!header.shown) return;
  txtHead_->setPlainText(toQt(header.text));
  cmdRun_->setEnabled(true);
}

void frmRouteDirectory::openMenu(const QPoint& position) {
  if (busy_ || !cardTabView(reading_.tab, reading_.files.size()).checkBoxes) return;
  mnuAllSelect_->popup(lvwFileName_->viewport()->mapToGlobal(position));
}

void frmRouteDirectory::checkAll(bool on) {
  if (busy_) return;
  checkAllRows(reading_, on);
  showChecks(*lvwFileName_, reading_.files,
             cardTabView(reading_.tab, reading_.files.size()).checkBoxes);
}

void frmRouteDirectory::run() {
  const int row = lvwFileName_->indexOfTopLevelItem(lvwFileName_->currentItem());
  if (row < 0 || busy_) return;
  {
    const FlagGuard busy(busy_);
    carryIn();
    lockControls();
    desktop().doEvents();
    const bool fetched = readForWaveView(reading_, static_cast<std::size_t>(row)) == kCardOk;
    unlockControls();
    desktop().doEvents();
    if (!fetched) return;
  }
  waveRequestSet = 1;
  accept();
}

void frmRouteDirectory::save(SaveKind kind) {
  if (busy_) return;
  const FlagGuard busy(busy_);
  carryIn();
  lockControls();
  desktop().doEvents();
  saveCheckedFiles(reading_, kind);
  unlockControls();
  desktop().doEvents();
}

void frmRouteDirectory::pickFolder(int index) {
  if (busy_) return;
  gFolderRole = kFolderSave;
  frmSelectFolder(this).exec();
  txtFolder_[index]->setText(toQt(gDefaultFolder));
}

void frmRouteDirectory::changeNames() {
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
  setControlsEnabled(unlockedControls(reading_.tab), true);
  tbsSelect_->setEnabled(true);
  lvwFileName_->setEnabled(true);
  lvwFileName_->setFocus();
}

}  // namespace vk
