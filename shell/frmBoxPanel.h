// SPDX-License-Identifier: MIT
// One panel of the status bar: what is chosen to be shown of a box, its state, and its buttons.
// Index 0 is the large main panel with the box list, 1 to 8 are the rows of the box table.
#pragma once

#include <QFrame>
#include <functional>

#include "shell/mdlBoxPanel.h"

class QComboBox;
class QLabel;
class QToolButton;

namespace vk {

class clsElidedLabel;

class frmBoxPanel : public QFrame {
  Q_OBJECT

 public:
  frmBoxPanel(int index, QWidget* parent);

  /// The geometry of mode 0 or 1; a low panel shows a single line without buttons.
  void place(const PanelPlace& place);
  void setContent(const std::string& content);
  void setButtonsEnabled(bool enabled);
  /// An empty colour leaves the indicator's colour.
  void setState(const std::optional<Colour>& colour, const std::string& text);
  /// The box list of the main panel.
  QComboBox* boxList() const { return cmbSerNum_; }

  std::function<void(PanelCommand)> onCommand;

 private:
  QToolButton* button(const char* name, int index, PanelCommand command);
  void arrangeSmall();
  void arrangeMain();
  void arrangeLow();
  void clearLayout();

  int index_;
  Colour colour_ = 0xFFFFFF;
  QComboBox* cmbSerNum_ = nullptr;
  QLabel* imgLED_;
  clsElidedLabel* lblSerNumber_;
  QFrame* shpStatus_;
  clsElidedLabel* fraMeterStatus_;
  QToolButton* cmdStart_;
  QToolButton* cmdStop_;
  QToolButton* cmdMtrg_;
};

}  // namespace vk
