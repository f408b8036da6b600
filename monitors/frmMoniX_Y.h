// SPDX-License-Identifier: MIT
// The window of an X-Y monitor.
#pragma once

#include <QFont>
#include <array>

#include "desktop/clsPictureBox.h"
#include "monitors/frmMonitor.h"
#include "monitors/mdlXYLayout.h"
#include "monitors/mdlXYMonitor.h"

class QSlider;

namespace vk {

class Pointer;

class frmMoniX_Y : public frmMonitor {
  Q_OBJECT

 public:
  frmMoniX_Y();

  void setInitMoniNum() override;
  void MoniLblDisconnect(std::size_t axis);

 protected:
  MonitorLogic& logic() override { return monitor_; }
  MonitorSurfaces surfaces() override { return {*picWave_, *picWaveSub_}; }
  void sayLabels(std::size_t channel, const ChannelLabels& labels) override;
  void layoutMonitor() override;
  void pictureShown() override;

 private:
  /// The labels of an axis in the column beside the plot.
  struct Block {
    QLabel* lblSerNum;
    QLabel* lblChNum;
    QLabel* caption;  ///< of the value
    QLabel* lblMonitor;
    QFont usual;
    QFont tight;
    QLabel* lblUnitNum;
    QLabel* scaleCaption;
    QLabel* lblScale;
    QLabel* offsetCaption;
    QLabel* lblOffSet;
    QSlider* sdrPos;
  };

  void addAxis(std::size_t axis);
  void sdrPos_Change(std::size_t axis, int value);
  void placeLabels(const XYLayout& all);
  XYLayout layoutOfSize() const;
  static void sayValue(const Block& block, const QString& text);
  void placeBlock(Block& block, const XYBlock& rows, const XYLayout& all);

  XYMonitor monitor_;
  clsPictureBox* picWave_;
  clsPictureBox* picWaveSub_;
  Pointer* shpPoint_;
  std::array<Block, kXYAxes> axes_{};
};

}  // namespace vk
