// SPDX-License-Identifier: MIT
// The settings of a circle monitor. Its dial runs from the "-" scale to the "+" scale.
#pragma once

#include "monitors/frmMonitorSetting.h"

namespace vk {

class frmMoniCircleSet : public frmMonitorSetting {
  Q_OBJECT

 public:
  explicit frmMoniCircleSet(QWidget* parent = nullptr);

 protected:
  bool entriesAgree() override;

 private:
  QComboBox* plus_;
  QComboBox* minus_;
};

}  // namespace vk
