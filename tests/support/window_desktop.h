// SPDX-License-Identifier: MIT
// Qt's own event loop with answered boxes and dialogs: no test of a window ever waits for a user.
#pragma once

#include <QTemporaryDir>
#include <string>

#include "desktop/clsQtDesktop.h"
#include "tests/support/desktop_answers.h"

namespace vktest {

class WindowDesktop : public vk::clsQtDesktop, public DesktopAnswers {
 public:
  WindowDesktop() { vk::setDesktop(this); }
  ~WindowDesktop() override { vk::setDesktop(nullptr); }

  QTemporaryDir data;   ///< stands for the special folders
  int64_t skipped = 0;  ///< milliseconds that passed without waiting for them

  int64_t milliseconds() override { return clsQtDesktop::milliseconds() + skipped; }

  vk::BoxAnswer messageBox(const std::string& title, const std::string& text,
                           vk::BoxButtons buttons, vk::BoxIcon) override {
    log.push_back("box[" + title + "][" + text + "]");
    return nextAnswer(buttons);
  }
  std::string fileDialog(vk::FileDialogKind, const std::string& title, const std::string&,
                         const std::string&) override {
    log.push_back("file[" + title + "]");
    return nextFile();
  }
  std::optional<vk::Colour> colourDialog(vk::Colour colour) override {
    log.push_back("colour[" + std::to_string(colour) + "]");
    return nextColour();
  }
  std::filesystem::path specialFolder(vk::SpecialFolder) override {
    return data.path().toStdString();
  }
  std::string decimalSymbol() override { return "."; }
  void endProgram() override {
    ending_ = true;
    log.push_back("end");
  }
};

}  // namespace vktest
