// SPDX-License-Identifier: MIT
// The settings of a bar monitor: four bars.
#pragma once

#include "monitors/frmMonitorSetting.h"

namespace vk {

class frmMoniBarSet : public frmMonitorSetting {
  Q_OBJECT

 public:
  explicit frmMoniBarSet(QWidget* parent = nullptr);
};

}  // namespace vk
