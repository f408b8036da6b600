// SPDX-License-Identifier: MIT
// Qt's own event loop with answered boxes and dialogs: no test of a window ever waits for a user.
#pragma once

#include <QTemporaryDir>
#include <deque>
#include <string>
#include <vector>

#include "desktop/clsQtDesktop.h"

namespace vktest {

class WindowDesktop : public vk::clsQtDesktop {
 public:
  WindowDesktop() { vk::setDesktop(this); }
  ~WindowDesktop() override { vk::setDesktop(nullptr); }

  std::deque<vk::BoxAnswer> answers;  ///< an empty queue answers with the first button
  std::deque<std::string> files;      ///< answers of file dialogs; an empty queue cancels
  std::vector<std::string> log;       ///< "box[title][text]", "end"
  QTemporaryDir data;                 ///< stands for the special folders

  std::string takeLog() {
    std::string text;
    for (const auto& line : log) text += line + "\n";
    log.clear();
    return text;
  }
  vk::BoxAnswer messageBox(const std::string& title, const std::string& text,
                           vk::BoxButtons buttons, vk::BoxIcon) override {
    log.push_back("box[" + title + "][" + text + "]");
    if (answers.empty()) {
      return buttons == vk::BoxButtons::kYesNo ? vk::BoxAnswer::kYes : vk::BoxAnswer::kOk;
    }
    const auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::string fileDialog(vk::FileDialogKind, const std::string& title, const std::string&,
                         const std::string&) override {
    log.push_back("file[" + title + "]");
    if (files.empty()) return {};
    const auto file = files.front();
    files.pop_front();
    return file;
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
