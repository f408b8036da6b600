// SPDX-License-Identifier: MIT
// Window of a wave monitor: the strip chart, its ground level slider, offset cancel and pause.
#pragma once

#include "desktop/clsPictureBox.h"
#include "monitors/frmMonitor.h"
#include "monitors/mdlWaveMonitor.h"

class QCheckBox;
class QSlider;

namespace vk {

class frmMoniWave : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniWave();

  void setInitMoniNum() override;

 protected:
  MonitorLogic& logic() override { return monitor_; }
  MonitorSurfaces surfaces() override { return {*picWave_, *picWaveSub_, picMaxMin_}; }
  void sayLabels(std::size_t channel, const ChannelLabels& labels) override;
  void layoutMonitor() override;

 private:
  void buildSlider();
  void buildFrame();
  void sdrYPos_Change(int position);
  void chkPause_Click(bool on);
  void chkOff_Click(bool on);

  WaveMonitor monitor_;
  clsPictureBox* picWave_;
  clsPictureBox* picWaveSub_;
  clsPictureBox* picMaxMin_;
  QLabel* lblSerNum_;
  QLabel* lblChNum_;
  QCheckBox* chkPause_ = nullptr;
  QCheckBox* chkOff_ = nullptr;
  QLabel* lblOffSet_;
  QSlider* sdrYPos_ = nullptr;
  QLabel* lblMonitor_;
  QLabel* lblUnitNum_;
  QLabel* lblYScale_;
  QLabel* lblXScale_;
};

}  // namespace vk
