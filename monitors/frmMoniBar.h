// SPDX-License-Identifier: MIT
// Window of a bar monitor: four bars over their panels, and one ground level slider for all.
#pragma once

#include "desktop/clsPictureBox.h"
#include "monitors/frmMonitor.h"
#include "monitors/mdlBarMonitor.h"

class QSlider;

namespace vk {

class frmMoniBar : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniBar();

  void setInitMoniNum() override;
  void MoniLblDisconnect(std::size_t bar);
  void MoniNotUseCh();

 protected:
  MonitorLogic& logic() override { return monitor_; }
  MonitorSurfaces surfaces() override { return {*picWave_, *picWaveSub_}; }
  void sayLabels(std::size_t channel, const ChannelLabels& labels) override;
  void layoutMonitor() override;

 private:
  struct Panel {
    QWidget* picCh = nullptr;
    QLabel* lblMonitor = nullptr;
    QLabel* lblScale = nullptr;
    QLabel* lblSerNum = nullptr;
    QLabel* lblChNum = nullptr;
    QLabel* lblUnit = nullptr;
  };

  Panel buildPanel(int bar);
  void buildSlider();
  void sdrYPos_Change(int position);
  void layoutPanel(const Panel& panel);
  void fitValue(const Panel& panel);
  void fitTexts(const Panel& panel);

  BarMonitor monitor_;
  clsPictureBox* picWave_;
  clsPictureBox* picWaveSub_;
  QSlider* sdrYPos_ = nullptr;
  QVBoxLayout* buttons_ = nullptr;
  std::array<Panel, kBars> panels_;
  int panelRow_ = 0;
};

}  // namespace vk
