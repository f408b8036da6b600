// SPDX-License-Identifier: MIT
#include "base/mdlBox.h"

#include <string>

namespace vk {

namespace {

BoxAnswer answerOf(std::string_view title, std::string_view text, BoxButtons buttons,
                   BoxIcon icon) {
  if (desktop().ending()) return BoxAnswer::kClosed;
  return desktop().messageBox(std::string(title), std::string(text), buttons, icon);
}

}  // namespace

void showBox(std::string_view title, std::string_view text, BoxIcon icon) {
  answerOf(title, text, BoxButtons::kOk, icon);
}

bool confirmBox(std::string_view title, std::string_view text, BoxIcon icon) {
  return answerOf(title, text, BoxButtons::kOkCancel, icon) == BoxAnswer::kOk;
}

bool unlessNo(std::string_view title, std::string_view text, BoxIcon icon) {
  return answerOf(title, text, BoxButtons::kYesNo, icon) != BoxAnswer::kNo;
}

}  // namespace vk
