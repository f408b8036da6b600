// SPDX-License-Identifier: MIT
// The controls of the card window and their places; what they do stands in frmRouteDirectory.cpp.
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/formParts.h"
#include "desktop/qtText.h"
#include "storage/frmRouteDirectory.h"

namespace vk {

namespace {

QVBoxLayout* panelLayout(QWidget* panel) {
  auto* lines = new QVBoxLayout(panel);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(10);
  return lines;
}

}  // namespace

void frmRouteDirectory::buildList() {
  lvwFileName_ = buildFileList(this, tr("Files on the card"));
  mnuAllSelect_ = buildSelectMenu(this, [this](bool on) { checkAll(on); });
}

void frmRouteDirectory::buildTabs() {
  tbsSelect_ =
      named(new QTabBar(this), QStringLiteral("tbsSelect"), tr("What to do with the files"));
  tbsSelect_->addTab(tr("Wave indication"));
  tbsSelect_->addTab(tr("Saving Binary File."));
  tbsSelect_->addTab(tr("Saving CSV File."));
  tbsSelect_->setExpanding(false);
}

QWidget* frmRouteDirectory::buildWavePanel() {
  auto* panel = named(new QWidget(this), QStringLiteral("picWave"));
  txtHead_ = named(new QPlainTextEdit(panel), QStringLiteral("txtHead"), tr("Header of the file"));
  txtHead_->setReadOnly(true);
  txtHead_->setTabChangesFocus(true);
  txtHead_->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtHead_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  cmdRun_ = named(new QPushButton(tr("&Show wave"), panel), QStringLiteral("cmdRun"));
  auto* lines = panelLayout(panel);
  lines->addWidget(captionOf(tr("&Header of the file"), txtHead_, panel));
  lines->addWidget(txtHead_, 1);
  lines->addWidget(cmdRun_, 0, Qt::AlignRight);
  return panel;
}

QWidget* frmRouteDirectory::buildFolder(int index, QWidget* panel) {
  const FolderRow row = buildFolderRow(panel, index, tr("Folder &to save in"), tr("&Folder..."));
  txtFolder_[index] = row.txtFolder;
  cmdFolder_[index] = row.cmdFolder;
  return row.row;
}

QWidget* frmRouteDirectory::buildBinaryPanel() {
  auto* panel = named(new QWidget(this), QStringLiteral("picBinSave"));
  cmdBinSave_ = named(new QPushButton(tr("&Save"), panel), QStringLiteral("cmdBinSave"),
                      tr("Save the checked files as binary"));
  auto* lines = panelLayout(panel);
  lines->addWidget(buildFolder(0, panel));
  lines->addStretch();
  lines->addWidget(cmdBinSave_, 0, Qt::AlignRight);
  return panel;
}

QWidget* frmRouteDirectory::buildCsvPanel() {
  auto* panel = named(new QWidget(this), QStringLiteral("picCSVSave"));
  cmdCSVSave_ = named(new QPushButton(tr("&Save"), panel), QStringLiteral("cmdCSVSave"),
                      tr("Save the checked files as CSV"));
  auto* lines = panelLayout(panel);
  lines->addWidget(buildFolder(1, panel));
  csv_.build(panel, *lines);
  lines->addStretch();
  lines->addWidget(cmdCSVSave_, 0, Qt::AlignRight);
  return panel;
}

void frmRouteDirectory::buildLayout() {
  // Stacked, so that the window has room for the largest of them from the start.
  panels_ = new QStackedLayout;
  for (auto* panel : {buildWavePanel(), buildBinaryPanel(), buildCsvPanel()})
    panels_->addWidget(panel);
  cmdFileSerNameChange_ =
      named(new QPushButton(tr("Change file and series &names..."), this),
            QStringLiteral("cmdFileSerNameChange"), tr("Change names of the checked files"));
  cmdCancel_ = named(new QPushButton(tr("&Close"), this), QStringLiteral("cmdCancel"));

  auto* files = new QVBoxLayout;
  files->setSpacing(10);
  files->addWidget(captionOf(tr("F&iles on the card"), lvwFileName_, this));
  files->addWidget(lvwFileName_, 1);
  files->addWidget(cmdFileSerNameChange_, 0, Qt::AlignLeft);
  layOutForm(this, tbsSelect_, files, panels_, progress_, cmdCancel_);
  tabThrough({tbsSelect_, lvwFileName_, cmdFileSerNameChange_, txtHead_, cmdRun_, txtFolder_[0],
              cmdFolder_[0], cmdBinSave_, txtFolder_[1], cmdFolder_[1], csv_.optCoeff[0],
              csv_.optCoeff[1], csv_.chkDivision, csv_.cmbDivision, cmdCSVSave_, cmdCancel_});
}

}  // namespace vk
