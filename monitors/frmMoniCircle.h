// SPDX-License-Identifier: MIT
// The window of a circle monitor: dial, value and scale.
#pragma once

#include <QFont>

#include "monitors/frmMonitor.h"
#include "monitors/mdlCircleMonitor.h"

namespace vk {

class frmMoniCircle : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniCircle();

  void setInitMoniNum() override;
  void Monitoring(std::span<const std::string_view> readings) override;
  void MoniDisConnect() override;
  void setUnitLabel() override;
  void showReadings() override;

 protected:
  void layoutMonitor() override;
  void clearReadings() override;
  void paletteChanged() override { arrange(); }

 private:
  void buildControls();
  void arrange();
  void placeValue(const CircleLayout& layout);
  void placePictures(const CircleLayout& layout);
  CirclePictures pictures();

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
