// SPDX-License-Identifier: MIT
// Window of a bar monitor: four bars over their panels, and one ground level slider for all.
#pragma once

#include "monitors/frmMonitor.h"
#include "monitors/mdlBarMonitor.h"

class QSlider;

namespace vk {

class frmMoniBar : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniBar();

  void setInitMoniNum() override;
  void Monitoring(std::span<const std::string_view> readings) override;
  void MoniDisConnect() override;
  void MoniLblDisconnect(std::size_t bar);
  void MoniNotUseCh();
  void setUnitLabel() override;
  void showReadings() override;

 protected:
  void layoutMonitor() override;
  void clearReadings() override;

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
