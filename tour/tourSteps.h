// SPDX-License-Identifier: MIT
// A tour works the windows of the real program by their control names: a list of steps, each taken
// once its condition holds, with a screenshot before it where one is wanted.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

namespace vktour {

/// The control of that name in a window that is shown; null when there is none.
template <typename Control>
Control* control(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible()) continue;
    if (window->objectName() == name) {
      if (auto* found = qobject_cast<Control*>(window)) return found;
    }
    if (auto* found = window->findChild<Control*>(name)) return found;
  }
  return nullptr;
}

bool isShown(const char* name);
void click(const QString& name);

/// What to do when the condition holds.
struct Step {
  const char* what;
  std::function<bool()> ready;
  std::function<void()> act;
  const char* picture = nullptr;  ///< taken before acting
};

class Tour {
 public:
  explicit Tour(QString output) : output_(std::move(output)) {}

  void add(Step step) { steps_.push_back(std::move(step)); }
  const QString& output() const { return output_; }
  void begin();

 private:
  void next();
  void run();
  [[noreturn]] void fail(const char* what);
  void takePicture(const QString& name) const;

  QString output_;
  std::vector<Step> steps_;
  std::size_t at_ = 0;
  QElapsedTimer patience_;
  QElapsedTimer seen_;
};

/// From the start form to the main window.
void addStart(Tour& tour);
/// Opens a monitor of each kind, sets them and looks at them live.
void addMonitors(Tour& tour);
/// Conditions from a file go to the box, its channels are balanced, and it lists them.
void addConditions(Tour& tour);
/// A recording that its own signal triggers.
void addTriggeredRecording(Tour& tour);
/// In the card window: the newest recording as a CSV file, compared with its samples.
void addCsv(Tour& tour);
/// The monitors stand where they were when the program ended.
void addReopened(Tour& tour);
void addEnd(Tour& tour);

}  // namespace vktour
