// SPDX-License-Identifier: MIT
// The window of a circle monitor: dial, value and scale.
#pragma once

#include <QFont>

#include "desktop/clsPictureBox.h"
#include "monitors/frmMonitor.h"
#include "monitors/mdlCircleLayout.h"
#include "monitors/mdlCircleMonitor.h"

namespace vk {

class frmMoniCircle : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniCircle();

  void setInitMoniNum() override;

 protected:
  MonitorLogic& logic() override { return monitor_; }
  MonitorSurfaces surfaces() override { return {*picWave_, *picWaveSub_, picSubCircle_}; }
  void sayLabels(std::size_t channel, const ChannelLabels& labels) override;
  void layoutMonitor() override;
  void paletteChanged() override { arrange(); }

 private:
  void buildControls();
  void arrange();
  void placeValue(const CircleLayout& layout);
  void placePictures(const CircleLayout& layout);

  CircleMonitor monitor_;
  clsPictureBox* picWave_ = nullptr;
  clsPictureBox* picWaveSub_ = nullptr;
  clsPictureBox* picSubCircle_ = nullptr;
  QLabel* lblMonitor_ = nullptr;
  QLabel* lblUnitNum_ = nullptr;
  QLabel* lblSerNum_ = nullptr;
  QLabel* lblChNum_ = nullptr;
  QLabel* lblYScale_ = nullptr;
  QLabel* lblOffSet_ = nullptr;
  QLabel* lbl1_3Scale_ = nullptr;
  QLabel* lbl2_3Scale_ = nullptr;
  QLabel* lblFullScale_ = nullptr;
  QVBoxLayout* buttons_ = nullptr;
  QFont usualFont_;
  QFont longFont_;
};

}  // namespace vk
