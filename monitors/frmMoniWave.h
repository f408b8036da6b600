// SPDX-License-Identifier: MIT
// Window of a wave monitor: the strip chart, its ground level slider, offset cancel and pause.
#pragma once

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
  void Monitoring(std::span<const std::string_view> readings) override;
  void MoniDisConnect() override;
  void setUnitLabel() override;
  void showReadings() override;

 protected:
  void layoutMonitor() override;
  void clearReadings() override;

 private:
  void buildSlider();
  void buildFrame();
  void sdrYPos_Change(int position);

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
