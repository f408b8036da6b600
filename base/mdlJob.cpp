// SPDX-License-Identifier: MIT
#include "base/mdlJob.h"

#include "base/clsDesktop.h"

namespace vk {

void JobView::tell(const std::string& first, const std::string& second) const {
  if (say) say(first, second);
}

void JobView::tellProgress(double fraction) const {
  if (progress) progress(fraction);
}

bool JobView::yield() const {
  if (desktop().ending()) return false;
  desktop().doEvents();
  return !desktop().ending() && !(stopped && stopped());
}

}  // namespace vk
