// SPDX-License-Identifier: MIT
// A desktop without a screen: answers come from a queue, what was shown is logged a line each, the
// clock is turned by hand, and an action can be run inside a yield, which is how re-entrance is
// tested.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>

#include "tests/support/desktop_answers.h"

namespace vktest {

class FakeDesktop : public vk::clsDesktop, public DesktopAnswers {
 public:
  FakeDesktop() { vk::setDesktop(this); }
  ~FakeDesktop() override { vk::setDesktop(nullptr); }

  // What the test prepares.
  std::deque<std::function<void()>> yields;  ///< each runs inside one yield
  std::map<vk::SpecialFolder, std::filesystem::path> folders;
  std::filesystem::path program = "/nonexistent";
  std::string decimal = ".";
  int64_t clock = 0;  ///< milliseconds; a wait moves it on
  vk::DateTime time{2026, 1, 5, 9, 30, 0};

  // What happened.
  int yieldCount = 0;
  bool ended = false;
  bool hourglass = false;

  vk::BoxAnswer messageBox(const std::string& title, const std::string& text,
                           vk::BoxButtons buttons, vk::BoxIcon icon) override {
    static const char* const kIcons[] = {"none", "information", "exclamation", "question"};
    static const char* const kButtons[] = {"ok", "ok-cancel", "yes-no"};
    log.push_back("box[" + title + "][" + text + "][" + kButtons[static_cast<int>(buttons)] + "][" +
                  kIcons[static_cast<int>(icon)] + "]");
    return nextAnswer(buttons);
  }
  void doEvents() override {
    ++yieldCount;
    if (yields.empty()) return;
    const auto action = yields.front();
    yields.pop_front();
    action();
  }
  void waitEvents(int wait) override {
    clock += wait > 0 ? wait : 1;
    doEvents();
  }
  int64_t milliseconds() override { return clock; }
  vk::DateTime now() override { return time; }
  std::string fileDialog(vk::FileDialogKind kind, const std::string& title,
                         const std::string& filter, const std::string& folder) override {
    log.push_back(std::string(kind == vk::FileDialogKind::kOpen ? "open[" : "save[") + title +
                  "][" + filter + "][" + folder + "]");
    return nextFile();
  }
  std::optional<vk::Colour> colourDialog(vk::Colour colour) override {
    log.push_back("colour[" + std::to_string(colour) + "]");
    return nextColour();
  }
  std::filesystem::path specialFolder(vk::SpecialFolder folder) override {
    const auto found = folders.find(folder);
    return found == folders.end() ? std::filesystem::path{} : found->second;
  }
  std::filesystem::path applicationFolder() override { return program; }
  std::string applicationTitle() override { return "VK-480Q CONTROLLER"; }
  std::string decimalSymbol() override { return decimal; }
  void setHourglass(bool on) override { hourglass = on; }
  void endProgram() override {
    ended = true;
    log.push_back("end");
  }
  bool ending() const override { return ended; }
};

}  // namespace vktest
