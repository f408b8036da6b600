// SPDX-License-Identifier: MIT
// What a kind of monitor is on the screen: its window, its setting dialog and its group of ticks in
// frmSetMonitor, in one row.
#pragma once

#include "monitors/mdlMonitorRecords.h"

class QWidget;

namespace vk {

class frmMonitor;
class frmMonitorSetting;

struct MonitorForm {
  MonitorKind kind;
  frmMonitor* (*window)();  ///< for the record of gMoniLoadIndex
  frmMonitorSetting* (*dialog)(QWidget* parent);

  // The group: its controls, its English title, and the cells that it takes.
  const char* frame;
  const char* heading;
  const char* box;
  const char* title;
  int lines;  ///< ticks in a column
  int row;
  int column;
  int rows = 1;
};

const MonitorForm& monitorForm(MonitorKind kind);

}  // namespace vk
