// SPDX-License-Identifier: MIT
// The start of every link test: an empty scripted library, an empty box table, and a desktop whose
// boxes stand in the library's transcript, so that one text shows the order of all that happened.
// A box line tells whether gUSBBusy was up while the box stood.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "link/mdlCardDirectory.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_library.h"

namespace vktest {

class TranscriptDesktop : public FakeDesktop {
 public:
  vk::BoxAnswer messageBox(const std::string& title, const std::string& text,
                           vk::BoxButtons buttons, vk::BoxIcon icon) override {
    const auto answer = FakeDesktop::messageBox(title, text, buttons, icon);
    library().transcript.push_back((vk::gUSBBusy != 0 ? "busy " : "idle ") + log.back());
    log.clear();
    return answer;
  }
};

class LinkTest : public ::testing::Test {
 protected:
  void SetUp() override {
    library() = ScriptedLibrary{};
    vk::resetBoxTable();
    vk::resetCommCounters();
    vk::gLinkEvents = {};
    vk::gUSBBusy = 0;
    vk::gLastReply = "old";
    vk::gCardDirectory.clear();
  }
  void TearDown() override { SetUp(); }

  static void place(std::size_t row, int32_t handle, int32_t serial) {
    vk::gBoxTable[row].handle = handle;
    vk::gBoxTable[row].serial = serial;
  }
  /// As the reply buffer holds it.
  static std::string padded(std::string text) {
    text.resize(vk::kReplyLength, ' ');
    return text;
  }

  TranscriptDesktop desk;
};

}  // namespace vktest
