// SPDX-License-Identifier: MIT
// The controls of the card window and their places; what they do stands in frmRouteDirectory.cpp.
#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <QStyle>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdlTwips.h"
#include "desktop/clsElidedLabel.h"
#include "desktop/qtText.h"
#include "storage/frmFormParts.h"
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
  lvwFileName_ =
      named(new QTreeWidget(this), QStringLiteral("lvwFileName"), tr("Files on the card"));
  lvwFileName_->setRootIsDecorated(false);
  lvwFileName_->setUniformRowHeights(true);
  lvwFileName_->setAllColumnsShowFocus(true);
  lvwFileName_->setContextMenuPolicy(Qt::CustomContextMenu);
  lvwFileName_->setColumnCount(static_cast<int>(kCardColumns.size()));
  for (std::size_t i = 0; i < kCardColumns.size(); ++i) {
    const int column = static_cast<int>(i);
    const int width = toPixels(kCardColumns[i].twips);
    lvwFileName_->headerItem()->setText(column, toQt(kCardColumns[i].title));
    lvwFileName_->setColumnWidth(column, width);
    // A width of a twip is no width: the column only stores.
    lvwFileName_->setColumnHidden(column, width < 1);
  }
  lvwFileName_->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  // The last column takes the rest of the width, which must hold a date and time.
  const int date = fontMetrics().horizontalAdvance(QStringLiteral("0000/00/00 00:00:00")) + 16;
  const int edge =
      style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * lvwFileName_->frameWidth();
  lvwFileName_->setMinimumWidth(lvwFileName_->columnWidth(0) + lvwFileName_->columnWidth(1) + date +
                                edge);

  mnuAllSelect_ = named(new QMenu(this), QStringLiteral("mnuAllSelect"));
  auto* select = named(mnuAllSelect_->addAction(tr("All select")), QStringLiteral("mnuASelect"));
  auto* cancel = named(mnuAllSelect_->addAction(tr("All cancel")), QStringLiteral("mnuACancel"));
  connect(select, &QAction::triggered, this, [this] { checkAll(true); });
  connect(cancel, &QAction::triggered, this, [this] { checkAll(false); });
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

QWidget* frmRouteDirectory::buildFolderRow(int index, QWidget* panel) {
  auto* row = new QWidget(panel);
  auto& box = txtFolder_[index];
  auto& button = cmdFolder_[index];
  box = named(new QLineEdit(row), elementName("txtFolder", index), tr("Folder to save in"));
  button = named(new QPushButton(tr("&Folder..."), row), elementName("cmdFolder", index),
                 tr("Choose the folder to save in"));
  auto* grid = new QGridLayout(row);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(captionOf(tr("Folder &to save in"), box, row), 0, 0, 1, 2);
  grid->addWidget(box, 1, 0);
  grid->addWidget(button, 1, 1);
  return row;
}

QWidget* frmRouteDirectory::buildBinaryPanel() {
  auto* panel = named(new QWidget(this), QStringLiteral("picBinSave"));
  cmdBinSave_ = named(new QPushButton(tr("&Save"), panel), QStringLiteral("cmdBinSave"),
                      tr("Save the checked files as binary"));
  auto* lines = panelLayout(panel);
  lines->addWidget(buildFolderRow(0, panel));
  lines->addStretch();
  lines->addWidget(cmdBinSave_, 0, Qt::AlignRight);
  return panel;
}

QWidget* frmRouteDirectory::buildCoefficientBox(QWidget* panel) {
  auto* box = new QGroupBox(tr("Reflection of the coefficient"), panel);
  auto* lines = new QVBoxLayout(box);
  auto* group = new QButtonGroup(box);
  const QString texts[] = {tr("Coefficient is reflected on the data.(Physics)"),
                           tr("Coefficient is not reflected on the data.(Strain)")};
  for (int i = 0; i < 2; ++i) {
    optCoeff_[i] = named(new QRadioButton(texts[i], box), elementName("optCoeff", i));
    group->addButton(optCoeff_[i], i);
    lines->addWidget(optCoeff_[i]);
  }
  optCoeff_[0]->setChecked(true);
  auto* note = new QLabel(tr("* Saved automatically by strain in case of coefficient 1."), box);
  note->setWordWrap(true);
  lines->addWidget(note);
  return box;
}

QWidget* frmRouteDirectory::buildCsvPanel() {
  auto* panel = named(new QWidget(this), QStringLiteral("picCSVSave"));
  chkDivision_ = named(new QCheckBox(tr("File is divided in the designated interval."), panel),
                       QStringLiteral("chkDivision"));
  cmbDivision_ =
      named(new QComboBox(panel), QStringLiteral("cmbDivision"), tr("Samples of one file"));
  cmdCSVSave_ = named(new QPushButton(tr("&Save"), panel), QStringLiteral("cmdCSVSave"),
                      tr("Save the checked files as CSV"));
  if (!gConvertToCsv) {
    const QString later = tr(
        "Will save the checked files as comma-separated text, whole or cut into files of as many "
        "samples as \"Division\" says.");
    cmdCSVSave_->setToolTip(later);
    cmdCSVSave_->setStatusTip(later);
  }
  auto* division = new QHBoxLayout;
  division->addSpacing(22);
  division->addWidget(captionOf(tr("&Division"), cmbDivision_, panel));
  division->addWidget(cmbDivision_);
  division->addStretch();
  auto* lines = panelLayout(panel);
  lines->addWidget(buildFolderRow(1, panel));
  lines->addWidget(buildCoefficientBox(panel));
  lines->addWidget(chkDivision_);
  lines->addLayout(division);
  lines->addStretch();
  lines->addWidget(cmdCSVSave_, 0, Qt::AlignRight);
  return panel;
}

QWidget* frmRouteDirectory::buildProgress() {
  auto* box = new QWidget(this);
  lblPrg_ = named(new clsElidedLabel(box), QStringLiteral("lblPrg"), tr("State of the work"));
  lblPrg_->setTextFormat(Qt::PlainText);
  lblPrgCnt_ = named(new QLabel(box), QStringLiteral("lblPrgCnt"), tr("Percent done"));
  lblPrgCnt_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblPrgCnt_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("100%")) + 4);
  pbrFile_ = named(new QProgressBar(box), QStringLiteral("pbrFile"), tr("Progress"));
  pbrFile_->setRange(0, 100);
  pbrFile_->setValue(0);
  pbrFile_->setTextVisible(false);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(4);
  grid->addWidget(lblPrg_, 0, 0, 1, 2);
  grid->addWidget(pbrFile_, 1, 0);
  grid->addWidget(lblPrgCnt_, 1, 1);
  grid->setColumnStretch(0, 1);
  return box;
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
  auto* middle = new QHBoxLayout;
  middle->setSpacing(16);
  middle->addLayout(files, 11);
  middle->addLayout(panels_, 10);
  auto* bottom = new QHBoxLayout;
  bottom->setSpacing(16);
  bottom->addWidget(buildProgress(), 1);
  bottom->addWidget(cmdCancel_, 0, Qt::AlignBottom);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(14, 12, 14, 14);
  lines->setSpacing(12);
  lines->addWidget(tbsSelect_);
  lines->addLayout(middle, 1);
  lines->addLayout(bottom);
  tabThrough({tbsSelect_, lvwFileName_, cmdFileSerNameChange_, txtHead_, cmdRun_, txtFolder_[0],
              cmdFolder_[0], cmdBinSave_, txtFolder_[1], cmdFolder_[1], optCoeff_[0], optCoeff_[1],
              chkDivision_, cmbDivision_, cmdCSVSave_, cmdCancel_});
}

}  // namespace vk
