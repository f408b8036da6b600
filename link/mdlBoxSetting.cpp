// SPDX-License-Identifier: MIT
#include "link/mdlBoxSetting.h"

#include <string>
#include <tuple>

#include "link/mdlExchange.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlSetDataWork.h"

namespace vk {

int32_t readMeasureSetting(int32_t serial) {
  // A failed exchange leaves an older reply behind, which the decoder then refuses.
  std::ignore = usbLST(serial, 0);
  int32_t result = decodeSettingString(serial, gLastReply);
  std::ignore = usbLST(serial, 1);
  result += decodeUnitList(serial, gLastReply);
  std::ignore = usbLST(serial, 2);
  result += decodeCoeffList(serial, gLastReply);
  return result;
}

int32_t writeDefaultSetting(int32_t serial) {
  int32_t result = usbSET(serial, std::string(modelFamily(familyOf(serial)).defaultSet));
  result += usbUNT(serial, std::string(kDefaultUnits));
  result += usbCEF(serial, std::string(kDefaultCoeffs));
  return result;
}

}  // namespace vk
