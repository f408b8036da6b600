// SPDX-License-Identifier: MIT
#include "base/clsDesktop.h"

#include <cassert>

namespace vk {

namespace {

clsDesktop* gDesktopInUse = nullptr;

}  // namespace

clsDesktop& desktop() {
  assert(gDesktopInUse != nullptr);
  return *gDesktopInUse;
}

void setDesktop(clsDesktop* desktop) {
  gDesktopInUse = desktop;
}

}  // namespace vk
