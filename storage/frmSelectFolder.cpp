// SPDX-License-Identifier: MIT
#include "storage/frmSelectFolder.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdlGeneral.h"
#include "desktop/clsElidedLabel.h"
#include "desktop/formParts.h"
#include "desktop/qtText.h"
#include "storage/mdlFolderList.h"
#include "storage/mdlFolderTree.h"

namespace vk {

namespace {

// The bytes of a path as they are: a name need not be UTF-8.
constexpr int kPathRole = Qt::UserRole;
constexpr int kFilledRole = Qt::UserRole + 1;

std::string pathOf(const QTreeWidgetItem& item) {
  return item.data(0, kPathRole).toByteArray().toStdString();
}

QTreeWidgetItem* folderItem(const std::string& path) {
  auto* item = new QTreeWidgetItem;
  item->setText(0, toQt(folderName(path)));
  item->setData(0, kPathRole, QByteArray::fromStdString(path));
  item->setIcon(0, QApplication::style()->standardIcon(QStyle::SP_DirIcon));
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

}  // namespace

frmSelectFolder::frmSelectFolder(QWidget* parent) : QDialog(parent), drives_(currentDrives()) {
  named(this, QStringLiteral("frmSelectFolder"));
  setWindowTitle(toQt(folderCaption(gFolderRole)));
  buildControls();
  buildLayout();
  const std::string start = startFolder(gDefaultFolder);
  Drive1_->setCurrentIndex(driveOf(drives_, start));
  showPath(start);
  connectControls();
  centreOnScreen(*this);
  Dir1_->setFocus();
}

void frmSelectFolder::buildControls() {
  lblText_ = new QLabel(toQt(folderText(gFolderRole)), this);
  Drive1_ = named(new QComboBox(this), QStringLiteral("Drive1"), tr("Drive"));
  for (const auto& drive : drives_)
    Drive1_->addItem(style()->standardIcon(QStyle::SP_DriveHDIcon), toQt(drive));
  Dir1_ = named(new QTreeWidget(this), QStringLiteral("Dir1"), tr("Folders"));
  Dir1_->setHeaderHidden(true);
  Dir1_->setUniformRowHeights(true);
  lblFolder_ = named(new clsElidedLabel(this), QStringLiteral("lblFolder"), tr("Chosen folder"));
  lblFolder_->setTextFormat(Qt::PlainText);
}

void frmSelectFolder::buildLayout() {
  auto* cmdSet = named(new QPushButton(tr("&Select"), this), QStringLiteral("cmdSet"));
  auto* cmdCancel = named(new QPushButton(tr("Cancel"), this), QStringLiteral("cmdCancel"));
  cmdSet->setDefault(true);
  connect(cmdSet, &QPushButton::clicked, this, &frmSelectFolder::cmdSet_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* drive = captionOf(tr("&Drive"), Drive1_, this);

  auto* driveRow = new QHBoxLayout;
  driveRow->addWidget(drive);
  driveRow->addWidget(Drive1_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdSet);
  buttons->addWidget(cmdCancel);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(14, 14, 14, 14);
  lines->setSpacing(9);
  lines->addWidget(lblText_);
  lines->addWidget(lblFolder_);
  lines->addLayout(driveRow);
  lines->addWidget(Dir1_, 1);
  lines->addLayout(buttons);
  tabThrough({Drive1_, Dir1_, cmdSet, cmdCancel});
}

void frmSelectFolder::connectControls() {
  connect(Drive1_, &QComboBox::currentIndexChanged, this, &frmSelectFolder::Drive1_Change);
  connect(Dir1_, &QTreeWidget::currentItemChanged, this, &frmSelectFolder::Dir1_Change);
  connect(Dir1_, &QTreeWidget::itemExpanded, this, [this](auto* item) { fill(item, {}); });
}

QTreeWidgetItem* frmSelectFolder::fill(QTreeWidgetItem* item, const std::string& open) {
  if (item->data(0, kFilledRole).toBool()) return nullptr;
  item->setData(0, kFilledRole, true);
  item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
  const FolderRows rows = folderRows(pathOf(*item), open);
  for (const auto& path : rows.paths) item->addChild(folderItem(path));
  return item->child(rows.opened);
}

void frmSelectFolder::showPath(const std::string& path) {
  const QSignalBlocker quiet(Dir1_);
  Dir1_->clear();
  const auto drive = drives_[Drive1_->currentIndex()];
  const auto chain = folderChain(drive, path);
  auto* item = folderItem(chain.front());
  Dir1_->addTopLevelItem(item);
  for (std::size_t depth = 1; depth < chain.size(); ++depth) {
    auto* below = fill(item, chain[depth]);
    item->setExpanded(true);
    item = below;
  }
  fill(item, {});
  item->setExpanded(true);
  Dir1_->setCurrentItem(item);
  Dir1_->scrollToItem(item, QAbstractItemView::PositionAtCenter);
  Dir1_Change(item);
}

void frmSelectFolder::Dir1_Change(QTreeWidgetItem* item) {
  if (!item) return;
  path_ = pathOf(*item);
  lblFolder_->setText(toQt(path_));
}

void frmSelectFolder::Drive1_Change(int index) {
  const auto path = pathAfterDrive(drives_[index], path_);
  const QSignalBlocker quiet(Drive1_);
  Drive1_->setCurrentIndex(driveOf(drives_, path));
  showPath(path);
}

void frmSelectFolder::cmdSet_Click() {
  chooseFolder(path_);
  accept();
}

}  // namespace vk
