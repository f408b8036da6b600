// SPDX-License-Identifier: MIT
// What the five kinds of monitor window share: the life of the window and its record, the caption,
// the frame with its buttons, and the layout that follows a change of size once it has settled. A
// kind adds its surfaces, its labels and its logic.
#pragma once

#include <QList>
#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "monitors/mdlMonitorCycle.h"
#include "monitors/mdlMonitorLogic.h"
#include "monitors/mdlMonitorPlace.h"

class QFrame;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QPushButton;
class QSlider;
class QTimer;
class QVBoxLayout;

namespace vk {

class clsPictureBox;

class frmMonitor : public QWidget, public MonitorWindow {
  Q_OBJECT

 public:
  ~frmMonitor() override;

  /// Puts the window into the area, not shown, at the place that its record tells.
  void enter(QMdiArea& area);
  /// Place, size and title into the record.
  void saveMonitorForm();

  void Monitoring(std::span<const std::string_view> readings) override;
  void MoniDisConnect() override;
  void setUnitLabel() override;
  void showReadings() override;
  void showWindow() override;
  void hideWindow() override;
  void unload() override;

 protected:
  /// `name` is the form's class; the record is that of gMoniLoadIndex.
  frmMonitor(MonitorKind kind, const char* name);

  std::size_t monitorIndex() const { return monitorIndex_; }
  MonitorFields fields() const { return monitorFields(kind_, monitorIndex_); }
  /// The logic of the kind, and the surfaces that it draws on.
  virtual MonitorLogic& logic() = 0;
  virtual MonitorSurfaces surfaces() = 0;
  /// Something was drawn.
  virtual void pictureShown() {}
  virtual void sayLabels(std::size_t channel, const ChannelLabels& labels) = 0;

  /// The common part of setInitMoniNum: caption, rows of the box table, and the logic's own.
  void initCommon();
  /// Fits surfaces, scales and labels to the size of the form; clears the trace.
  virtual void layoutMonitor() = 0;
  /// The desktop went dark or light: only what is drawn in its colours has to follow.
  virtual void paletteChanged() {}
  /// Kinds that keep their place at every layout call this first.
  void storePlace();

  /// A small label of the form (or of `parent`) with its control name, without a text.
  QLabel* addLabel(const QString& name, QWidget* parent = nullptr);
  clsPictureBox* addPicture(const char* name);
  /// fraSet with cmdSet ("Set") and the clearing button ("Clear") of the given name. Further
  /// controls go to its layout.
  QVBoxLayout* addFrame(const char* clearButton);
  QFrame* fraSet() const { return fraSet_; }
  /// From -10 to 10, in half divisions; an upright one has its least value at the top, because rows
  /// grow downward and the handle shall stand where the zero line is.
  QSlider* addGroundSlider(const QString& name, Qt::Orientation direction, const QString& spoken);
  /// Puts a control into its place; one without a size is hidden.
  static void put(QWidget* control, const MonitorPlace& place);
  /// A hidden twin of the picture's size above the form, the second one beside the first.
  static void putTwin(clsPictureBox* twin, const clsPictureBox& picture, bool second = false);
  /// Hides the value surfaces until the first layout.
  void hideControls(const QList<QWidget*>& surfaces);
  void showControls();

  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

  /// A new text, if there is one and it is another.
  static void sayNew(QLabel* label, const std::optional<std::string>& text);

 private:
  void tmrResize_Timer();
  void cmdSet_Click();
  void cmdReset_Click();
  MonitorPlace openingPlaceIn(QMdiArea& area) const;
  void leaveList();
  QMdiSubWindow* child() const;

  const MonitorKind kind_;
  const std::size_t monitorIndex_;
  std::array<int32_t, kMostChannels> boxSlot_{};  ///< of each channel, as last initialised
  QTimer* tmrResize_;
  int64_t lastResize_ = 0;
  QFrame* fraSet_ = nullptr;
  QList<QWidget*> surfaces_;
};

}  // namespace vk
