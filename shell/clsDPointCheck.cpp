// SPDX-License-Identifier: MIT
#include "shell/clsDPointCheck.h"

#include "base/clsDesktop.h"
#include "base/mdlBox.h"

namespace vk {

namespace {

constexpr const char* kJapanese =
    "「コントロール パネル」の「地域のプロパティ」で、数値の小数点の記号をピリオド「.」に"
    "変更してください。   \r\nその後、ソフトウェアを再起動してください。";
constexpr const char* kEnglish =
    "From the \"Regional Settings Properties\" in the \"Control Panel\", change the decimal symbol "
    "of number to point \".\".   \r\nThereafter, restart the software.";

}  // namespace

void clsDPointCheck::SetLanguage(int32_t language) {
  message_.clear();
  if (language == 0) message_ = kJapanese;
  if (language == 1) message_ = kEnglish;
}

bool clsDPointCheck::Check() const {
  if (desktop().decimalSymbol() == ".") return false;
  showBox(desktop().applicationTitle(), message_);
  return true;
}

}  // namespace vk
