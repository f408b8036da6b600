// SPDX-License-Identifier: MIT
// The setting file in both dialects: what is read is a record that passes every check and fills row
// 9 only, what is refused leaves no trace and is told in one box, and a record that a dialog could
// show comes back from the file that is written of it.
#include "base/mdlText.h"
#include "conditions/mdlSettingFile.h"
#include "fuzz/fuzz_check.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlConditionRules.h"
#include "tests/support/dialog_controls.h"
#include "tests/support/fake_desktop.h"

using vkfuzz::require;

namespace {

void checkWhole(vktest::FakeDesktop& desktop, std::string_view text) {
  vk::resetBoxTable();
  auto before = vk::gBoxTable;
  const int32_t result = vk::readSettingFile(text);
  require(result == 0 || result == 1, "the result is 0 or 1", text);
  require(desktop.log.size() == static_cast<std::size_t>(result), "a refusal is told once", text);
  desktop.log.clear();
  if (result == 0) {
    vk::MeasureSetting checked = vk::gBoxTable[vk::kFileRow];
    require(vk::checkSetting(checked) == vk::kSettingOk, "a read record passes the check", text);
    require(!vk::modelFamily(checked.model).excitation != vk::contains(text, "VK-480Q"), "dialect",
            text);
    before[vk::kFileRow] = vk::gBoxTable[vk::kFileRow];
  }
  require(vk::gBoxTable == before, "only a read record changes the table", text);
}

bool allRangesShown(const vk::DialogControls& controls) {
  return std::none_of(controls.channel.begin(), controls.channel.end(),
                      [](const vk::ChannelControls& channel) { return channel.range.empty(); });
}

/// Either dialect, whatever the text says of itself.
void checkDialect(bool low, std::string_view text) {
  vk::MeasureSetting record = vk::zeroedSetting();
  const int32_t result =
      low ? vk::parseLowDialect(text, record) : vk::parseHighDialect(text, record);
  require(result == 0 || result == 1, "a parser gives 0 or 1", text);
  if (result != 0 || vk::checkSetting(record) != vk::kSettingOk) return;
  const auto controls = vktest::controlsOf(record, low ? vk::kVk240Q : vk::kVk480Q);
  vk::MeasureSetting checked;
  require(vk::checkControls(controls, checked) == vk::kSettingOk, "shown conditions can be saved",
          text);
  const std::string written = vk::buildSettingFileText(controls) + "\r\n";
  const bool readable = vk::readSettingFile(written) == 0;
  require(readable == allRangesShown(controls), "a written file reads, but for empty words",
          written);
  if (!readable) return;
  require(vk::gBoxTable[vk::kFileRow] == vktest::throughFile(controls), "a written file comes back",
          written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  vktest::FakeDesktop desktop;
  const std::string_view text = vkfuzz::textOfInput(data, size);
  checkWhole(desktop, text);
  checkDialect(true, text);
  checkDialect(false, text);
  return 0;
}
