// SPDX-License-Identifier: MIT
// The settings of a wave monitor.
#pragma once

#include "monitors/frmMonitorSetting.h"

namespace vk {

class frmMoniWavSet : public frmMonitorSetting {
  Q_OBJECT

 public:
  explicit frmMoniWavSet(QWidget* parent = nullptr);
};

}  // namespace vk
