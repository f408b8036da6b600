// SPDX-License-Identifier: MIT
// The program upgrade: a wizard of one form whose button changes its meaning by step.
#pragma once

#include <QDialog>

#include "maintenance/mdlUpgrade.h"

class QLabel;
class QPushButton;

namespace vk {

class frmVersionUp : public QDialog {
  Q_OBJECT

 public:
  frmVersionUp();
  void reject() override;

 private:
  JobView jobView();
  void cmdNext_Click();
  void showStep();

  Upgrade upgrade_;
  bool transferring_ = false;
  QLabel* lblMessage_;
  QLabel* lblProgress_;
  QPushButton* cmdNext_;
  QPushButton* cmdCancel_;
};

}  // namespace vk
