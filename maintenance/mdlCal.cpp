// SPDX-License-Identifier: MIT
#include "maintenance/mdlCal.h"

#include "base/mdlBox.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

namespace {

constexpr int kCalOff = 0;

}  // namespace

bool pressCal(Calibration& calibration, int button) {
  if (!modelRow(familyOf(calibration.serial)).analogOutput) {
    showBox(kCalCaption, "Possible calibration output for VK-480Qe only.");
    return false;
  }
  // Also after "CAL OFF": a second one at the end does no harm.
  if (usbCAL(calibration.serial, button) == kUsbOk) calibration.on = true;
  // After a failure too: its box has told it, and the lit button is the one pressed last.
  calibration.pressed = button;
  return true;
}

void closeCal(Calibration& calibration) {
  if (!calibration.on) return;
  calibration.on = false;
  if (usbMET(calibration.serial) == kUsbOk) usbCAL(calibration.serial, kCalOff);
}

int calPicture(const Calibration& calibration, int button) {
  return button == calibration.pressed ? button + kCalOutputs : button;
}

}  // namespace vk
