// SPDX-License-Identifier: MIT
#include "recorder/mdlCodeTables.h"

#include <algorithm>

namespace vk {

int32_t findIndex(std::span<const std::string_view> table, std::string_view text) {
  const auto found = std::find(table.begin(), table.end(), text);
  return found == table.end() ? -1 : static_cast<int32_t>(found - table.begin());
}

std::string_view textAt(std::span<const std::string_view> table, int32_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= table.size()) return {};
  return table[index];
}

}  // namespace vk
