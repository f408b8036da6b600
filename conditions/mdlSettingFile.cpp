// SPDX-License-Identifier: MIT
#include "conditions/mdlSettingFile.h"

#include <array>
#include <exception>
#include <filesystem>
#include <span>

#include "base/mdlBox.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlConditionRules.h"
#include "recorder/mdlSetDataWork.h"

namespace vk {

namespace {

using Words = std::span<const std::string_view>;

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kDialectLine = " Setting Data";
constexpr std::string_view kDefaultExtension = ".set";

// Titles and texts of fileDialogText.
constexpr int32_t kReadTitle = 1;
constexpr int32_t kSaveTitle = 15;
constexpr int32_t kSettingFilter = 16;

/// Lines of the file, as setFileLabel counts them.
enum Line : std::size_t {
  kChannelModeLine,
  kRangeLine,
  kCarrierLine,
  kFilterLine,
  kBalanceLine,
  kTriggerModeLine,
  kSlopeLine,
  kLevelLine,
  kSamplingLine,
  kPreAreaLine,
  kDataSizeLine,
  kUnitLine,
  kCoeffLine,
};
using LineValues = std::array<std::string, setFileLabel.size()>;

// --- writing ------------------------------------------------------------------------------------

/// Four words, `word` of each channel, with commas between them.
template <typename Word>
std::string fourWords(Word word) {
  std::string text;
  for (std::size_t channel = 1; channel <= kChannels; ++channel) {
    text += word(channel);
    text += ',';
  }
  return dropLastComma(text);
}

std::string fourWords(Words words, const PerChannel<int16_t>& indices) {
  return fourWords([&](std::size_t channel) { return textAt(words, indices[channel]); });
}

/// A range list without a selection writes an empty word, which no reader takes for a range.
std::string rangeWords(const DialogControls& controls, const MeasureSetting& record) {
  return fourWords([&](std::size_t channel) {
    const Words names = rangeNames(controls.model, record.carrier[channel]);
    return textAt(rangeFile, findIndex(names, controls.channel[channel].range));
  });
}

LineValues valuesOf(const DialogControls& controls) {
  const MeasureSetting record = readControls(controls);
  LineValues values;
  values[kChannelModeLine] = textAt(chModeFile, record.channelMode);
  values[kRangeLine] = rangeWords(controls, record);
  values[kCarrierLine] = fourWords(carrierFile, record.carrier);
  values[kFilterLine] = fourWords(filterFile, record.filter);
  values[kBalanceLine] = fourWords(onOffFile, record.balance);
  values[kTriggerModeLine] = textAt(trgModeFile, record.triggerMode);
  values[kSlopeLine] = fourWords(trgSlopeFile, record.triggerSlope);
  values[kLevelLine] =
      fourWords([&](std::size_t channel) { return controls.channel[channel].level; });
  values[kSamplingLine] = textAt(samplingFile, record.sampling);
  values[kPreAreaLine] = textAt(preAreaFile, record.preArea);
  values[kDataSizeLine] = textAt(dataSizeFile, record.dataSize);
  values[kUnitLine] = fourWords(unitName, record.unit);
  values[kCoeffLine] = fourWords(
      [&](std::size_t channel) { return formatNumber(record.coeff[channel], "0.000000E+00"); });
  return values;
}

// --- reading ------------------------------------------------------------------------------------

LineValues valuesOf(std::string_view text) {
  LineValues values;
  for (std::size_t line = 0; line < values.size(); ++line) {
    values[line] = headerValue(text, setFileLabel[line]);
  }
  return values;
}

/// Hands each channel's item to `take`.
template <typename Take>
void eachItem(const std::string& value, Take take) {
  for (std::size_t channel = 1; channel <= kChannels; ++channel) {
    take(channel, listField(value, static_cast<int32_t>(channel)));
  }
}

void lookupEach(Words words, const std::string& value, PerChannel<int16_t>& field) {
  eachItem(value, [&](std::size_t channel, const std::string& item) {
    lookup(words, item, field[channel]);
  });
}

/// `tested` decides whether the whole pre-area is meant, `value` tells any other.
void readPreArea(std::string_view tested, std::string_view value, MeasureSetting& record) {
  if (tested == preAreaFile[kPreAreaFull]) {
    record.preArea = static_cast<int16_t>(wholePreArea(record.channelMode, record.dataSize));
  } else {
    lookup(preAreaFile, value, record.preArea);
  }
}

/// The lines that both dialects spell alike.
void readCommonLines(const LineValues& values, MeasureSetting& record) {
  lookup(chModeFile, values[kChannelModeLine], record.channelMode);
  lookupEach(onOffFile, values[kBalanceLine], record.balance);
  lookup(trgModeFile, values[kTriggerModeLine], record.triggerMode);
  lookupEach(trgSlopeFile, values[kSlopeLine], record.triggerSlope);
  eachItem(values[kLevelLine], [&](std::size_t channel, const std::string& item) {
    record.triggerLevel[channel] = throughLevelFormat(toDouble(item));
  });
  lookupEach(unitName, values[kUnitLine], record.unit);
  eachItem(values[kCoeffLine], [&](std::size_t channel, const std::string& item) {
    record.coeff[channel] = toSingle(item);
  });
}

// The older words of the VK-240Q dialect, at the indices of the words that replaced them.
constexpr auto kOldRange =
    std::to_array<std::string_view>({"", "", "", "", "5000", "10000", "20000"});
constexpr auto kOldFilter = std::to_array<std::string_view>({"", "30", "100", "300", "PASS"});
constexpr auto kOldSampling =
    std::to_array<std::string_view>({"", "", "", "0.05msec", "0.1msec", "0.2msec", "0.5msec", "",
                                     "", "", "", "", "", "", "", "", "1000msec"});
constexpr auto kOldDataSize = std::to_array<std::string_view>(
    {"1k", "2k", "4k", "8k", "16k", "32k", "64k", "128k", "256k", "512k",
     "",   "",   "",   "",   "",    "",    "",    "",     "",     "36M"});

/// Of the present words only those that this family has, from the index `first` to `last`.
struct LowWords {
  Words present;
  int16_t first;
  int16_t last;
  Words old;
};
constexpr LowWords kLowRange{rangeFile, 4, 6, kOldRange};
constexpr LowWords kLowFilter{filterFile, 1, 4, kOldFilter};
constexpr LowWords kLowSampling{samplingFile, 3, 16, kOldSampling};
constexpr LowWords kLowDataSize{dataSizeFile, 0, 23, kOldDataSize};

void lookupLow(const LowWords& words, std::string_view text, int16_t& field) {
  int16_t index = -1;
  lookup(words.present, text, index);
  if (index < words.first || index > words.last) index = -1;
  lookup(words.old, text, index);
  if (index >= 0) field = index;
}

void lookupLowEach(const LowWords& words, const std::string& value, PerChannel<int16_t>& field) {
  eachItem(value, [&](std::size_t channel, const std::string& item) {
    lookupLow(words, item, field[channel]);
  });
}

// --- files --------------------------------------------------------------------------------------

/// The path that the user chose, empty after a cancel. The dialog adds no extension of its own.
std::string chosenPath(FileDialogKind kind, int32_t title) {
  const FileDialogResult chosen =
      fileDialog(kind, fileDialogText(title), fileDialogText(kSettingFilter));
  const bool bare = !chosen.name.empty() && std::filesystem::path(chosen.name).extension().empty();
  if (!bare || (kind == FileDialogKind::kOpen && fileMissing(chosen.path) == 0)) return chosen.path;
  return chosen.path + std::string(kDefaultExtension);
}

bool fileWorked(int32_t error, const std::string& path) {
  if (error != kFileOk) showBox("File Error", fileErrorText(error) + "\r\n" + path);
  return error == kFileOk;
}

}  // namespace

std::string buildSettingFileText(const DialogControls& controls) {
  const LineValues values = valuesOf(controls);
  std::string text(modelName[modelFamily(controls.model).dialect]);
  text += kDialectLine;
  for (std::size_t line = 0; line < values.size(); ++line) {
    text += kLineEnd;
    text += setFileLabel[line];
    text += values[line];
  }
  return text;
}

int32_t parseLowDialect(std::string_view text, MeasureSetting& record) {
  return trapped([&] {
    const LineValues values = valuesOf(text);
    readCommonLines(values, record);
    lookupLowEach(kLowRange, values[kRangeLine], record.range);
    lookupLowEach(kLowFilter, values[kFilterLine], record.filter);
    lookupLow(kLowSampling, values[kSamplingLine], record.sampling);
    lookupLow(kLowDataSize, values[kDataSizeLine], record.dataSize);
    readPreArea(values[kPreAreaLine], values[kPreAreaLine], record);
    return 0;
  });
}

int32_t parseHighDialect(std::string_view text, MeasureSetting& record) {
  return trapped([&] {
    const LineValues values = valuesOf(text);
    readCommonLines(values, record);
    lookupEach(rangeFile, values[kRangeLine], record.range);
    lookupEach(carrierFile, values[kCarrierLine], record.carrier);
    lookupEach(filterFile, values[kFilterLine], record.filter);
    lookup(samplingFile, values[kSamplingLine], record.sampling);
    lookup(dataSizeFile, values[kDataSizeLine], record.dataSize);
    // The sampling never is "100%", so here "100%" always reads as the first of its two meanings,
    // and the check turns it into the other where it has to. Files have long been read that way.
    readPreArea(values[kSamplingLine], values[kPreAreaLine], record);
    return 0;
  });
}

int32_t readSettingFile(std::string_view text) {
  const bool high = contains(text, modelName[kVk480Q]);
  MeasureSetting record = zeroedSetting();
  record.model = high ? kVk480Q : kVk240Q;
  if ((high ? parseHighDialect(text, record) : parseLowDialect(text, record)) != 0) {
    showBox("Setting file Error", "Cannot read setting file.");
    return 1;
  }
  if (const int32_t error = checkSetting(record); error != kSettingOk) {
    MeasureSetErrorView(error);
    return 1;
  }
  gBoxTable[kFileRow] = record;
  return 0;
}

void MeasureSetErrorView(int32_t number) {
  const std::string text(settingErrorText(number));
  if (text.empty()) return;
  showBox(kSettingErrorTitle, text, BoxIcon::kInformation);
}

bool saveSettingFile(const DialogControls& controls) {
  MeasureSetting record;
  if (const int32_t error = checkControls(controls, record); error != kSettingOk) {
    MeasureSetErrorView(error);
    return false;
  }
  const std::string text = buildSettingFileText(controls);
  const std::string path = chosenPath(FileDialogKind::kSave, kSaveTitle);
  if (path.empty()) return false;
  if (findFileAnyCase(path) && askOverwrite(path) != 1) return false;
  return fileWorked(writeTextFile(path, text), path);
}

bool loadSettingFile(int32_t dialogModel) {
  const std::string path = chosenPath(FileDialogKind::kOpen, kReadTitle);
  if (path.empty()) return false;
  std::string text;
  if (!fileWorked(readTextFile(path, text), path)) return false;
  if (readSettingFile(text) != 0) return false;
  const ModelFamily& family = modelFamily(dialogModel);
  if (family.ownFilesOnly && modelFamily(gBoxTable[kFileRow].model).dialect != family.dialect) {
    showBox("ﾌｧｲﾙｴﾗｰ", path + "\r\nVK-240QにVK-480Qの設定ﾌｧｲﾙは反映できません。");
    return false;
  }
  return true;
}

}  // namespace vk
