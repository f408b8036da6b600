// SPDX-License-Identifier: MIT
// Ways to use a window in a test: find a control by its name, act inside a modal window.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

namespace vktest {

inline std::string fileText(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

template <typename Widget>
Widget* control(QWidget& form, const char* name) {
  auto* found = form.findChild<Widget*>(QString::fromLatin1(name));
  if (!found) ADD_FAILURE() << "no control " << name;
  return found;
}

/// Runs the action in the event loop of the next modal window with that name.
inline void inModal(const char* name, std::function<void(QDialog&)> action, int tries = 200) {
  QTimer::singleShot(0, qApp, [=] {
    auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (window && window->objectName() == QLatin1String(name) && window->isVisible())
      return action(*window);
    if (tries == 0) {
      ADD_FAILURE() << "no modal window " << name;
      return;
    }
    inModal(name, action, tries - 1);
  });
}

}  // namespace vktest
