// SPDX-License-Identifier: MIT
// The list of everything that a recorder itself reports about its conditions and its state. The
// replies are fetched afresh and decoded here on their own, without checks: the list also shows
// what no record of the box table would accept, and it changes nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vk {

inline constexpr std::string_view kListCaption = "Setting/Conditions list";
inline constexpr std::string_view kListHeading = "Header information";

/// A line of the list: what stands in the column of captions and in that of values. Neither holds
/// a line end.
struct ConditionLine {
  std::string caption;
  std::string value;
};

/// Asks the box for LST 0, 1, 2, STA and FLN. A failed exchange leaves one line in place of its
/// lines; the list itself never fails.
std::vector<ConditionLine> fillConditionList(int32_t serial);

/// One column, a line each, and the whole list as it goes to the clipboard.
std::string captionColumn(const std::vector<ConditionLine>& list);
std::string valueColumn(const std::vector<ConditionLine>& list);
std::string listText(const std::vector<ConditionLine>& list);

}  // namespace vk
