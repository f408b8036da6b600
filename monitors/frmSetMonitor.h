// SPDX-License-Identifier: MIT
// Asks which monitors are to be shown. The answer is left in gMonitorSelection.
#pragma once

#include <QDialog>
#include <array>
#include <vector>

#include "monitors/mdlMonitorRecords.h"

class QCheckBox;
class QGroupBox;

namespace vk {

struct MonitorForm;

class frmSetMonitor : public QDialog {
  Q_OBJECT

 public:
  explicit frmSetMonitor(QWidget* parent = nullptr);
  void reject() override;

 private:
  QGroupBox* buildGroup(const MonitorForm& group);
  void cmdSet_Click();

  std::array<std::vector<QCheckBox*>, kMonitorKinds.size()> boxes_;
};

}  // namespace vk
