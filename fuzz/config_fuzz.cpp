// SPDX-License-Identifier: MIT
// The configuration file: the text is read alone and in front of a whole file, whose values then
// fill in for what it lacks. Whatever was read, what is written of it can be read completely and
// gives the same text again.
#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "base/mdlGeneral.h"
#include "fuzz/fuzz_check.h"
#include "monitors/mdlMonitorRecords.h"
#include "recorder/mdlBoxTable.h"
#include "shell/mdlConfig.h"
#include "shell/mdlConfigText.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_library.h"

using vkfuzz::require;

namespace {

std::vector<std::string> allCaptions() {
  std::vector<std::string> captions;
  for (const auto& record : vk::gNumMoni) captions.push_back(record.NUM_CAPTION);
  for (const auto& record : vk::gWaveMoni) captions.push_back(record.WAV_CAPTION);
  for (const auto& record : vk::gXYMoni) captions.push_back(record.XY_CAPTION);
  for (const auto& record : vk::gBarMoni) captions.push_back(record.BAR_CAPTION);
  for (const auto& record : vk::gCircleMoni) captions.push_back(record.CRL_CAPTION);
  return captions;
}

/// A key is found by its first occurrence, also inside a caption.
bool holdsKey(const std::string& caption) {
  if (caption.find(' ') == std::string::npos) return false;
  for (int32_t number = 0; number < vk::configKeyCount(); ++number) {
    if (caption.find(std::string(vk::configKeyName(number)) + " ") != std::string::npos)
      return true;
  }
  return false;
}

/// The blanks behind the last caption of a kind stand at the line's end, where they are lost.
void dropBlanksAtLineEnds() {
  const auto drop = [](std::string& caption) { caption.erase(caption.find_last_not_of(' ') + 1); };
  drop(vk::gNumMoni.back().NUM_CAPTION);
  drop(vk::gWaveMoni.back().WAV_CAPTION);
  drop(vk::gXYMoni.back().XY_CAPTION);
  drop(vk::gBarMoni.back().BAR_CAPTION);
  drop(vk::gCircleMoni.back().CRL_CAPTION);
}

void readAndCheck(const std::string& text) {
  vk::setDefaults();
  std::ignore = vk::readConfigText(text);
  require(vk::gMainBox >= 1 && vk::gMainBox <= vk::kBoxes, "the main box is a row", text);
  require(vk::gStatusMode == 0 || vk::gStatusMode == 1, "the status mode is 0 or 1", text);
  require(vk::gStatusContents >= 0 && vk::gStatusContents <= 3, "the contents are 0 to 3", text);
  for (const std::string& caption : allCaptions()) {
    require(caption.find_first_of(",\r\n") == std::string::npos, "a caption is one field", caption);
  }
}

void checkWriting() {
  dropBlanksAtLineEnds();
  const std::string written = vk::configText();
  require(vk::fieldCount(written, '\n') + 1 == vk::configKeyCount() + 5, "a line for each key",
          written);
  const auto captions = allCaptions();
  if (std::any_of(captions.begin(), captions.end(), holdsKey)) return;
  vk::setDefaults();
  require(vk::readConfigText(written), "a written file reads", written);
  require(vk::configText() == written, "a configuration comes back", written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  static vktest::FakeDesktop desktop;
  vk::setDefaults();
  static const std::string whole = vk::configText();
  const std::string text(vkfuzz::textOfInput(data, size));
  // Alone it is read as far as it goes: most texts lack a key and end the reading there.
  readAndCheck(text);
  readAndCheck(text + "\r\n" + whole);
  checkWriting();
  vktest::library().transcript.clear();
  return 0;
}
