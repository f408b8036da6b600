// SPDX-License-Identifier: MIT
// Asks for the box, and in one mode the channel, that a menu action is meant for. gSelMode says
// what to ask; the answer is left in gSelSerial and gSelChannel.
#pragma once

#include <QDialog>

class QComboBox;
class QPushButton;

namespace vk {

class frmSelectMeterCh : public QDialog {
  Q_OBJECT

 public:
  /// `check`: the dialog goes before the self checks, and its button says so.
  explicit frmSelectMeterCh(bool check = false, QWidget* parent = nullptr);
  void reject() override;

 private:
  void cmdRun_Click();
  void enableRun();

  QComboBox* cmbMeter_;
  QComboBox* cmbChannel_;
  QPushButton* cmdRun_;
};

}  // namespace vk
