// SPDX-License-Identifier: MIT
// The calibration output of one box: three buttons, of which the one pressed last is lit.
#pragma once

#include <QDialog>
#include <array>
#include <cstdint>

#include "maintenance/mdlCal.h"

class QHBoxLayout;
class QPushButton;

namespace vk {

class frmCal : public QDialog {
  Q_OBJECT

 public:
  explicit frmCal(int32_t serial, QWidget* parent = nullptr);
  void done(int result) override;

 private:
  QHBoxLayout* outputs();
  void addPictures();
  void build();
  void cmdCal_Click(int button);
  void showPictures();

  Calibration calibration_;
  bool busy_ = false;
  std::array<QPushButton*, kCalOutputs> cmdCal_{};
};

}  // namespace vk
