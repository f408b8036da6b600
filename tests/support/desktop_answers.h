// SPDX-License-Identifier: MIT
// What both test desktops prepare and note: the user's answers, and a line for all that was shown.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "base/clsDesktop.h"

namespace vktest {

struct DesktopAnswers {
  std::deque<vk::BoxAnswer> answers;  ///< an empty queue answers with the first button
  std::deque<std::string> files;      ///< answers of file dialogs; an empty queue cancels
  std::deque<vk::Colour> colours;     ///< answers of colour dialogs; an empty queue cancels
  std::vector<std::string> log;

  /// The log as one text, a line each, and empties it.
  std::string takeLog() {
    std::string text;
    for (const auto& line : log) text += line + "\n";
    log.clear();
    return text;
  }
  vk::BoxAnswer nextAnswer(vk::BoxButtons buttons) {
    if (answers.empty()) {
      return buttons == vk::BoxButtons::kYesNo ? vk::BoxAnswer::kYes : vk::BoxAnswer::kOk;
    }
    const auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::optional<vk::Colour> nextColour() {
    if (colours.empty()) return std::nullopt;
    const auto colour = colours.front();
    colours.pop_front();
    return colour;
  }
  std::string nextFile() {
    if (files.empty()) return {};
    const auto file = files.front();
    files.pop_front();
    return file;
  }
};

}  // namespace vktest
