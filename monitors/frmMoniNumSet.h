// SPDX-License-Identifier: MIT
// The settings of a numerical monitor, with samples of its normal and abnormal look.
#pragma once

#include "monitors/frmMonitorSetting.h"

namespace vk {

class frmMoniNumSet : public frmMonitorSetting {
  Q_OBJECT

 public:
  explicit frmMoniNumSet(QWidget* parent = nullptr);

 protected:
  void colourChanged(int i) override;
  bool entriesAgree() override;

 private:
  struct Sample {
    ColourArea* back = nullptr;
    QLabel* fore = nullptr;
  };
  Sample addSample(QFormLayout* form, const char* back, const char* fore);
  void buildNormal();
  void buildAbnormal();
  void cmbPoint_Click(int decimals);
  void chkCaution_Click(bool on);
  void colourSample(int i, Colour colour);

  Sample normal_;
  Sample abnormal_;
  QGroupBox* fraAbnormal_;
  QLineEdit* txtUp_;
  QLineEdit* txtDown_;
};

}  // namespace vk
