// SPDX-License-Identifier: MIT
// The settings of an X-Y monitor: two axes, Y first.
#pragma once

#include "monitors/frmMonitorSetting.h"

namespace vk {

class frmMoniX_YSet : public frmMonitorSetting {
  Q_OBJECT

 public:
  explicit frmMoniX_YSet(QWidget* parent = nullptr);
};

}  // namespace vk
