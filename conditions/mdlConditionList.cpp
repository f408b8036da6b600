// SPDX-License-Identifier: MIT
#include "conditions/mdlConditionList.h"

#include <cstddef>
#include <span>

#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlModel.h"
#include "recorder/mdlWireText.h"

namespace vk {

namespace {

using List = std::vector<ConditionLine>;

/// The text beside a code; empty for a code that the table does not hold.
std::string nameOf(std::span<const std::string_view> codes, std::span<const std::string_view> names,
                   std::string_view code) {
  return code.empty() ? std::string{} : std::string(textAt(names, findIndex(codes, code)));
}

/// The last reply without its line end: a line end in a value would push the columns apart.
std::string replyLine() {
  return gLastReply.substr(0, gLastReply.find_first_of("\r\n"));
}

/// The values of all four channels in one line.
template <typename Value>
std::string perChannel(Value value) {
  std::string text;
  for (std::size_t channel = 1; channel <= kChannels; ++channel) text += " " + value(channel) + ",";
  return dropLastComma(text);
}

/// The settings string of a box.
struct Conditions {
  std::string text;
  const ModelFamily& family;

  std::string rangeShown(std::size_t channel) const {
    const bool wide = setting_text::kCarrier.of(text, channel) == carrierCode[kCarrier05];
    return nameOf(family.rangeCodes, wide ? family.rangesListed05 : family.rangesListed,
                  setting_text::kRange.of(text, channel));
  }
  std::string filterShown(std::size_t channel) const {
    return nameOf(family.filterCodes, family.filtersListed,
                  setting_text::kFilter.of(text, channel));
  }
  std::string carriersShown() const {
    if (!family.excitation) return "2.0V, 2.0V, 2.0V, 2.0V";
    return perChannel([&](std::size_t channel) {
      return nameOf(carrierCode, carrierName, setting_text::kCarrier.of(text, channel));
    });
  }
  std::string level(std::size_t channel) const { return setting_text::kLevel.of(text, channel); }
  std::string slopeShown(std::size_t channel) const {
    if (level(channel).starts_with('N')) return "OFF";
    return nameOf(trgSlopeCode, trgSlopeName, setting_text::kSlope.of(text, channel));
  }
};

/// A field that does not read has no value, and its channel keeps its place in the line.
std::string levelShown(const std::string& field) {
  const auto whole = readWhole(field);
  const auto tenths = readWhole(right(field, 3));
  switch (field.empty() ? '\0' : field.front()) {
    case 'N':
      return "---";
    case '+':
      return whole ? "+" + textOf(*whole) + " %" : "";
    case '-':
      return whole ? textOf(*whole) + " %" : "";
    case 'P':
      return tenths ? formatNumber(*tenths / 10.0, "+#0.0") + " %" : "";
    case 'M':  // the letter's sign is lost, as it is in the record
      return tenths ? formatNumber(*tenths / 10.0, "#0.0") + " %" : "";
    default:
      return "";
  }
}

void addConditions(List& list, int32_t serial) {
  if (usbLST(serial, 0) != kUsbOk) {
    list.push_back({"Channel Mode", "USB ERROR (MEASURE SETTING)"});
    return;
  }
  const Conditions box{replyLine(), modelFamily(familyOf(serial))};
  list.push_back(
      {"Channel Mode", nameOf(chModeCode, chModeName, setting_text::kMode.of(box.text))});
  list.push_back({"Range", perChannel([&](std::size_t c) { return box.rangeShown(c); })});
  list.push_back({"Excitation", box.carriersShown()});
  list.push_back({"Filter", perChannel([&](std::size_t c) { return box.filterShown(c); })});
  list.push_back(
      {"Trigger Mode", nameOf(trgModeCode, trgModeName, setting_text::kTrigger.of(box.text))});
  list.push_back({"Trigger Slope", perChannel([&](std::size_t c) { return box.slopeShown(c); })});
  list.push_back(
      {"Trigger Level", perChannel([&](std::size_t c) { return levelShown(box.level(c)); })});
  list.push_back(
      {"Sampling", nameOf(samplingCode, samplingName, setting_text::kSampling.of(box.text))});
  list.push_back(
      {"Data Size", nameOf(dataSizeCode, dataSizeName, setting_text::kDataSize.of(box.text))});
  list.push_back(
      {"PreArea", nameOf(preAreaCode, preAreaName, setting_text::kPreArea.of(box.text))});
}

void addUnits(List& list, int32_t serial) {
  if (usbLST(serial, 1) != kUsbOk) {
    list.push_back({"Unit", "USB ERROR (UNIT SETTING)"});
    return;
  }
  const std::string reply = replyLine();
  list.push_back({"Unit", perChannel([&](std::size_t channel) {
                    const auto item = listField(reply, static_cast<int32_t>(channel));
                    return nameOf(unitName, unitName, item);
                  })});
}

void addCoefficients(List& list, int32_t serial) {
  if (usbLST(serial, 2) != kUsbOk) {
    list.push_back({"Coefficient", "USB ERROR (COEFF SETTING)"});
    return;
  }
  const std::string reply = replyLine();
  list.push_back({"Coefficient", perChannel([&](std::size_t channel) {
                    return listField(reply, static_cast<int32_t>(channel));
                  })});
}

/// The state of the status reply, whose line stands behind that of the card.
std::string addStatus(List& list, int32_t serial) {
  if (usbSTA(slotOf(serial)) != kUsbOk) {
    list.push_back({"Date/Time", "USB ERROR (STATUS)"});
    return {};
  }
  const std::string reply = replyLine();
  list.push_back({"Date/Time", "20" + status_text::kDateTime.of(reply)});
  list.push_back({"Master/Slave", staSyncMode() == 0 ? "Master" : "Slave"});
  list.push_back({"Balance", perChannel([&](std::size_t channel) -> std::string {
                    return status_text::kBalance.of(reply, channel) == onOffCode[0] ? "ON" : "OFF";
                  })});
  list.push_back({"BOOT ROM Version", status_text::kBootRom.of(reply)});
  list.push_back({"MAIN ROM Version", status_text::kMainRom.of(reply)});
  return errorText(readWhole(status_text::kState.of(reply)).value_or(0));
}

std::string cardShown(int32_t result) {
  if (result == kUsbNoCard) return "CF card not inserted.";
  if (result != kUsbOk) return "USB ERROR (FILE)";
  const std::string reply = replyLine();
  return card_text::kMeasured.of(reply) + "/" + card_text::kReserved.of(reply);
}

}  // namespace

std::vector<ConditionLine> fillConditionList(int32_t serial) {
  List list;
  list.push_back({"Model", std::string(textAt(modelName, familyOf(serial)))});
  list.push_back({"Serial No.", serialText(serial)});
  addConditions(list, serial);
  addUnits(list, serial);
  addCoefficients(list, serial);
  const std::string state = addStatus(list, serial);
  list.push_back({"Mes_File/Res_File", cardShown(usbFLN(serial))});
  if (!state.empty()) list.push_back({"VK-480Q Information", state});
  return list;
}

std::string captionColumn(const std::vector<ConditionLine>& list) {
  std::string text;
  for (const auto& line : list) text += (text.empty() ? "" : "\n") + line.caption;
  return text;
}

std::string valueColumn(const std::vector<ConditionLine>& list) {
  std::string text;
  for (const auto& line : list) text += (&line == list.data() ? "" : "\n") + line.value;
  return text;
}

std::string listText(const std::vector<ConditionLine>& list) {
  std::string text;
  for (const auto& line : list) text += line.caption + "\t" + line.value + "\n";
  return text;
}

}  // namespace vk
