// SPDX-License-Identifier: MIT
#include "storage/frmCardParts.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/mdlText.h"
#include "base/mdlTwips.h"
#include "desktop/clsElidedLabel.h"
#include "desktop/formParts.h"
#include "desktop/qtText.h"

namespace vk {

QTreeWidget* buildFileList(QWidget* form, const QString& spoken) {
  auto* list = named(new QTreeWidget(form), QStringLiteral("lvwFileName"), spoken);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  list->setColumnCount(kCardColumns.size());
  for (std::size_t i = 0; i < kCardColumns.size(); ++i) {
    const int column = i;
    const int width = toPixels(kCardColumns[i].twips);
    list->headerItem()->setText(column, toQt(kCardColumns[i].title));
    list->setColumnWidth(column, width);
    // A width of a twip is no width: the column only stores.
    list->setColumnHidden(column, width < 1);
  }
  list->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  // The last column takes the rest of the width, which must hold a date and time.
  const int date = form->fontMetrics().horizontalAdvance(QStringLiteral("0000/00/00 00:00:00"));
  const int edge =
      form->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * list->frameWidth() + 16;
  list->setMinimumWidth(list->columnWidth(0) + list->columnWidth(1) + date + edge);
  return list;
}

void addFileRow(QTreeWidget& list, const CardEntry& entry) {
  auto* item = new QTreeWidgetItem;
  item->setText(0, toQt(entry.rowText));
  item->setText(1, toQt(entry.sizeText));
  item->setText(2, toQt(entry.date));
  item->setText(3, toQt(entry.headerSizeText));
  item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  list.addTopLevelItem(item);
}

void takeChecks(const QTreeWidget& list, std::vector<CardEntry>& files) {
  for (int row = 0; row < list.topLevelItemCount(); ++row) {
    const QVariant state = list.topLevelItem(row)->data(0, Qt::CheckStateRole);
    if (state.isValid()) {
      files[row].checked = state.toInt() == Qt::Checked;
    }
  }
}

void showChecks(QTreeWidget& list, const std::vector<CardEntry>& files, bool boxes) {
  for (int row = 0; row < list.topLevelItemCount(); ++row) {
    const bool checked = files[row].checked;
    const QVariant state = checked ? Qt::Checked : Qt::Unchecked;
    list.topLevelItem(row)->setData(0, Qt::CheckStateRole, boxes ? state : QVariant());
  }
}

QMenu* buildSelectMenu(QWidget* form, const std::function<void(bool)>& checkAll) {
  auto* menu = named(new QMenu(form), QStringLiteral("mnuAllSelect"));
  auto* select = named(menu->addAction(QObject::tr("All select")), QStringLiteral("mnuASelect"));
  auto* cancel = named(menu->addAction(QObject::tr("All cancel")), QStringLiteral("mnuACancel"));
  QObject::connect(select, &QAction::triggered, form, [checkAll] { checkAll(true); });
  QObject::connect(cancel, &QAction::triggered, form, [checkAll] { checkAll(false); });
  return menu;
}

FolderRow buildFolderRow(QWidget* panel, int index, const QString& caption, const QString& button) {
  auto* row = new QWidget(panel);
  const QString spoken = QString(caption).remove(QLatin1Char('&'));
  auto* txtFolder = named(new QLineEdit(row), elementName("txtFolder", index), spoken);
  auto* cmdFolder = named(new QPushButton(button, row), elementName("cmdFolder", index),
                          QObject::tr("Choose: %1").arg(spoken));
  auto* grid = new QGridLayout(row);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(captionOf(caption, txtFolder, row), 0, 0, 1, 2);
  grid->addWidget(txtFolder, 1, 0);
  grid->addWidget(cmdFolder, 1, 1);
  return {row, txtFolder, cmdFolder};
}

void CsvControls::build(QWidget* panel, QVBoxLayout& lines) {
  auto* box = new QGroupBox(QObject::tr("Reflection of the coefficient"), panel);
  auto* inBox = new QVBoxLayout(box);
  auto* group = new QButtonGroup(box);
  const QString texts[] = {QObject::tr("Coefficient is reflected on the data.(Physics)"),
                           QObject::tr("Coefficient is not reflected on the data.(Strain)")};
  for (int i = 0; i < 2; ++i) {
    optCoeff[i] = named(new QRadioButton(texts[i], box), elementName("optCoeff", i));
    group->addButton(optCoeff[i], i);
    inBox->addWidget(optCoeff[i]);
  }
  optCoeff[0]->setChecked(true);
  // In one line: a wrapping label would let the window get too low for it.
  inBox->addWidget(
      new QLabel(QObject::tr("* Saved automatically by strain in case of coefficient 1."), box));

  chkDivision =
      named(new QCheckBox(QObject::tr("File is divided in the designated interval."), panel),
            QStringLiteral("chkDivision"));
  cmbDivision = named(new QComboBox(panel), QStringLiteral("cmbDivision"),
                      QObject::tr("Samples of one file"));
  auto* division = new QHBoxLayout;
  division->addSpacing(22);
  division->addWidget(captionOf(QObject::tr("&Division"), cmbDivision, panel));
  division->addWidget(cmbDivision);
  division->addStretch();
  lines.addWidget(box);
  lines.addWidget(chkDivision);
  lines.addLayout(division);
}

void CsvControls::fillDivisions() {
  cmbDivision->clear();
  for (const int32_t count : divisionCounts()) cmbDivision->addItem(toQt(textOf(count)), count);
}

CsvOptions CsvControls::options() const {
  CsvOptions options;
  options.division = chkDivision->isChecked();
  const int32_t count = cmbDivision->currentData().toInt();
  if (count > 0) options.divisionCount = count;
  options.scaled = optCoeff[0]->isChecked();
  return options;
}

QWidget* ProgressControls::build(QWidget* form) {
  auto* box = new QWidget(form);
  lblPrg =
      named(new clsElidedLabel(box), QStringLiteral("lblPrg"), QObject::tr("State of the work"));
  lblPrg->setTextFormat(Qt::PlainText);
  lblPrgCnt = named(new QLabel(box), QStringLiteral("lblPrgCnt"), QObject::tr("Percent done"));
  lblPrgCnt->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblPrgCnt->setMinimumWidth(form->fontMetrics().horizontalAdvance(QStringLiteral("100%")) + 4);
  pbrFile = named(new QProgressBar(box), QStringLiteral("pbrFile"), QObject::tr("Progress"));
  pbrFile->setRange(0, 100);
  pbrFile->setValue(0);
  pbrFile->setTextVisible(false);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(4);
  grid->addWidget(lblPrg, 0, 0, 1, 2);
  grid->addWidget(pbrFile, 1, 0);
  grid->addWidget(lblPrgCnt, 1, 1);
  grid->setColumnStretch(0, 1);
  return box;
}

JobView ProgressControls::jobView() const {
  return {
      [label = lblPrg](const std::string& text, const std::string&) { label->setText(toQt(text)); },
      [bar = pbrFile, label = lblPrgCnt](double fraction) {
        const int percent = percentOf(fraction);
        bar->setValue(percent);
        label->setText(toQt(textOf(percent) + "%"));
      },
      {}};
}

void ProgressControls::clear() const {
  lblPrgCnt->clear();
  pbrFile->setValue(0);
}

void layOutForm(QWidget* form, QWidget* above, QLayout* files, QLayout* choices,
                ProgressControls& progress, QPushButton* close) {
  auto* middle = new QHBoxLayout;
  middle->setSpacing(16);
  middle->addLayout(files, 11);
  middle->addLayout(choices, 10);
  auto* bottom = new QHBoxLayout;
  bottom->setSpacing(16);
  bottom->addWidget(progress.build(form), 1);
  bottom->addWidget(close, 0, Qt::AlignBottom);
  auto* lines = new QVBoxLayout(form);
  lines->setContentsMargins(14, 12, 14, 14);
  lines->setSpacing(12);
  if (above) lines->addWidget(above);
  lines->addLayout(middle, 1);
  lines->addLayout(bottom);
}

}  // namespace vk
