// SPDX-License-Identifier: MIT
// The window of a numerical monitor.
#pragma once

#include <optional>

#include "desktop/clsPictureBox.h"
#include "monitors/frmMonitor.h"
#include "monitors/mdlNumMonitor.h"

class QVBoxLayout;

namespace vk {

class frmMoniNum : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniNum();

  void setInitMoniNum() override;
  void setUnitLabel() override;

 protected:
  MonitorLogic& logic() override { return monitor_; }
  MonitorSurfaces surfaces() override { return {*picMonitor_, *picMoniSub_}; }
  void sayLabels(std::size_t channel, const ChannelLabels& labels) override;
  void layoutMonitor() override;
  void pictureShown() override;

 private:
  void placeLabels();

  NumMonitor monitor_;
  clsPictureBox* picMonitor_;
  clsPictureBox* picMoniSub_;
  clsPictureBox* picUnit_;
  clsPictureBox* picMaxMoni_;
  clsPictureBox* picMinMoni_;
  QLabel* lblUnitNum_;
  QLabel* lblMaxCap_;
  QLabel* lblMaxMoni_;
  QLabel* lblMinCap_;
  QLabel* lblMinMoni_;
  QLabel* lblSerNum_;
  QLabel* lblChNum_;
  QVBoxLayout* buttons_;
  std::optional<Colour> unitBack_;  ///< what fills picUnit
};

}  // namespace vk
