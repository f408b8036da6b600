// SPDX-License-Identifier: MIT
// Sets the clock of one box by hand.
#pragma once

#include <QDialog>
#include <array>
#include <cstdint>

#include "maintenance/mdlDateTime.h"

class QGridLayout;
class QLineEdit;
class QPushButton;

namespace vk {

class frmDataTime : public QDialog {
  Q_OBJECT

 public:
  explicit frmDataTime(int32_t serial, QWidget* parent = nullptr);
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void build();
  void addBox(QGridLayout& grid, int box);
  DateTexts texts() const;
  void txtDate_KeyPress(int box);
  void cmdSet_Click();
  void select(int box);

  int32_t serial_;
  bool filled_ = false;
  bool busy_ = false;
  std::array<QLineEdit*, kDateBoxes> txtDate_{};
  QPushButton* cmdSet_;
};

}  // namespace vk
