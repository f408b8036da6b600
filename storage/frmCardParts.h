// SPDX-License-Identifier: MIT
// The parts that the card window and the conversion window are both built of: the list of files, a
// folder with its button, the choices of a conversion, the progress.
#pragma once

#include <functional>

#include "storage/mdlCardReading.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QMenu;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QString;
class QTreeWidget;
class QVBoxLayout;
class QWidget;

namespace vk {

/// lvwFileName with the columns of kCardColumns.
QTreeWidget* buildFileList(QWidget* form, const QString& spoken);
/// A row of the list, as far as it shows.
void addFileRow(QTreeWidget& list, const CardEntry& entry);
/// Takes the marks over; rows without a check box keep theirs.
void takeChecks(const QTreeWidget& list, std::vector<CardEntry>& files);
/// Puts the marks into the check boxes, or takes the boxes away.
void showChecks(QTreeWidget& list, const std::vector<CardEntry>& files, bool boxes);
/// mnuAllSelect with "All select" (true) and "All cancel" (false).
QMenu* buildSelectMenu(QWidget* form, const std::function<void(bool)>& checkAll);

/// txtFolder(index) and cmdFolder(index) below their caption.
struct FolderRow {
  QWidget* row;
  QLineEdit* txtFolder;
  QPushButton* cmdFolder;
};
FolderRow buildFolderRow(QWidget* panel, int index, const QString& caption, const QString& button);

struct CsvControls {
  QRadioButton* optCoeff[2];
  QCheckBox* chkDivision;
  QComboBox* cmbDivision;  ///< empty until fillDivisions()

  void build(QWidget* panel, QVBoxLayout& lines);
  void fillDivisions();
  CsvOptions options() const;
};

struct ProgressControls {
  QProgressBar* pbrFile;
  QLabel* lblPrg;
  QLabel* lblPrgCnt;

  QWidget* build(QWidget* form);
  /// A job shows itself by the controls: its first line and how far it is.
  JobView jobView() const;
  /// No percent any more; the line stays.
  void clear() const;
};

/// The form: files on the left, choices on the right, progress and the closing button below. What
/// stands above all, if anything, may be null.
void layOutForm(QWidget* form, QWidget* above, QLayout* files, QLayout* choices,
                ProgressControls& progress, QPushButton* close);

}  // namespace vk
