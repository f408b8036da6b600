// SPDX-License-Identifier: MIT
// The window of a numerical monitor.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "monitors/frmMonitor.h"
#include "monitors/mdlNumMonitor.h"

class QVBoxLayout;

namespace vk {

class frmMoniNum : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniNum();

  void setInitMoniNum() override;
  void Monitoring(std::span<const std::string_view> readings) override;
  void MoniDisConnect() override;
  void setUnitLabel() override;
  void showReadings() override;

 protected:
  void layoutMonitor() override;
  void clearReadings() override;

 private:
  void placeLabels();
  void showColours();

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
