// SPDX-License-Identifier: MIT
// Recordings that lie in a folder, turned into CSV files. While it works, cmdCancel stops the
// work at its next yield; closing the window does so too, and then closes it.
#pragma once

#include <QDialog>

#include "storage/frmCardParts.h"
#include "storage/mdlCsvFolder.h"

namespace vk {

class frmBin_CSV : public QDialog {
  Q_OBJECT

 public:
  explicit frmBin_CSV(QWidget* parent = nullptr);
  ~frmBin_CSV() override;

  QSize sizeHint() const override { return {780, 520}; }
  void reject() override;

 private:
  void buildControls();
  void buildLayout();
  void connectControls();

  void txtFolder_LostFocus();
  void lvwFileName_MouseUp(const QPoint& position);
  void cmdFolder_Click(int index);
  void cmdCSVSave_Click();
  void cmdCancel_Click();

  /// Lists the folder to read from; only what is listed is converted.
  void fillList();
  /// Lists it when it has been typed otherwise.
  void followTyping();
  void checkAll(bool on);
  JobView jobView();
  /// Takes the folder to save in, the choices and the check boxes over.
  void carryIn();
  void setControlsEnabled(bool on);

  CsvFolder work_;
  bool busy_ = false;
  bool stop_ = false;   ///< the work is to stop
  bool close_ = false;  ///< the window was closed while it worked

  FolderRow folders_[2];
  QTreeWidget* lvwFileName_;
  QMenu* mnuAllSelect_;
  CsvControls csv_;
  ProgressControls progress_;
  QPushButton* cmdCSVSave_;
  QPushButton* cmdCancel_;
};

}  // namespace vk
