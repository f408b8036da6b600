// SPDX-License-Identifier: MIT
#include "shell/mdlConfigText.h"

#include <array>
#include <optional>
#include <variant>
#include <vector>

#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "base/mdlText.h"
#include "monitors/mdlMonitorRecords.h"

namespace vk {

bool gShowShortcut = true;
bool gShowStatus = true;
int32_t gStatusMode = 0;
int32_t gMainBox = 1;
int32_t gStatusContents = 0;

namespace {

/// Where a value lives; its type decides how it is written and read.
using Slot = std::variant<bool*, int32_t*, float*, std::string*>;

enum class Kind { kNumerical, kWave, kXY, kBar, kCircle, kSingle, kReserved };

struct ConfigKey {
  std::string_view name;
  Kind kind;
  Slot (*slot)(std::size_t record);
};

template <auto& Records, auto Field>
Slot fieldOf(std::size_t record) {
  return &(Records[record].*Field);
}
template <auto& Records, auto Field, std::size_t Element>
Slot elementOf(std::size_t record) {
  return &(Records[record].*Field)[Element];
}
template <auto& Global>
Slot globalOf(std::size_t) {
  return &Global;
}

template <auto Field>
constexpr ConfigKey num(std::string_view name) {
  return {name, Kind::kNumerical, fieldOf<gNumMoni, Field>};
}
template <auto Field>
constexpr ConfigKey wave(std::string_view name) {
  return {name, Kind::kWave, fieldOf<gWaveMoni, Field>};
}
template <auto Field>
constexpr ConfigKey xy(std::string_view name) {
  return {name, Kind::kXY, fieldOf<gXYMoni, Field>};
}
template <auto Field, std::size_t Axis>
constexpr ConfigKey axis(std::string_view name) {
  return {name, Kind::kXY, elementOf<gXYMoni, Field, Axis>};
}
template <auto Field>
constexpr ConfigKey bar(std::string_view name) {
  return {name, Kind::kBar, fieldOf<gBarMoni, Field>};
}
template <auto Field, std::size_t Bar>
constexpr ConfigKey bars(std::string_view name) {
  return {name, Kind::kBar, elementOf<gBarMoni, Field, Bar>};
}
template <auto Field>
constexpr ConfigKey circle(std::string_view name) {
  return {name, Kind::kCircle, fieldOf<gCircleMoni, Field>};
}
template <auto& Global>
constexpr ConfigKey single(std::string_view name) {
  return {name, Kind::kSingle, globalOf<Global>};
}
/// Written with an empty value and never read.
constexpr ConfigKey reserved(std::string_view name) {
  return {name, Kind::kReserved, nullptr};
}

using Num = NumMonitorRec;
using Wave = WaveMonitorRec;
using XY = XYMonitorRec;
using Bar = BarMonitorRec;
using Circle = CircleMonitorRec;

/// Every key of the file, in its order. The spellings are the file's.
constexpr std::array<ConfigKey, kConfigKeys> kKeys = {{
    // clang-format off
    num<&Num::NUM_BACK>("NUM_BACK"),
    num<&Num::NUM_FORE>("NUM_FORE"),
    num<&Num::NUM_C_BACK>("NUM_C_BACK"),
    num<&Num::NUM_C_FORE>("NUM_C_FORE"),
    wave<&Wave::WAV_BACK>("WAV_BACK"),
    wave<&Wave::WAV_FORE>("WAV_FORE"),
    wave<&Wave::WAV_C_BACK>("WAV_C_BACK"),
    wave<&Wave::WAV_C_FORE>("WAV_C_FORE"),
    wave<&Wave::WAV_GND>("WAV_GND"),
    wave<&Wave::WAV_GRID>("WAV_GRID"),
    xy<&XY::XY_BACK>("XY_BACK"),
    xy<&XY::XY_FORE>("XY_FORE"),
    xy<&XY::XY_POINT>("XY_POINT"),
    xy<&XY::XY_C_BACK>("XY_C_BACK"),
    xy<&XY::XY_C_FORE>("XY_C_FORE"),
    xy<&XY::XY_C_POINT>("XY_C_POINT"),
    xy<&XY::XY_GND>("XY_GND"),
    xy<&XY::XY_GRID>("XY_GRID"),
    reserved("MES_BACK"),
    reserved("MES_FORE"),
    reserved("MES_CUR1"),
    reserved("MES_CUR2"),
    reserved("MES_POINT"),
    num<&Num::NUM_SER>("NUM_SER"),
    num<&Num::NUM_CH>("NUM_CH"),
    num<&Num::NUM_ONOFF>("NUM_ONOFF"),
    num<&Num::NUM_SPEED>("NUM_SPEED"),
    num<&Num::NUM_POINT>("NUM_POINT"),
    num<&Num::NUM_CVAL_ONOFF>("NUM_CVAL_ONOFF"),
    num<&Num::NUM_CVAL_UP>("NUM_CVAL_UP"),
    num<&Num::NUM_CVAL_DOWN>("NUM_CVAL_DOWN"),
    wave<&Wave::WAV_SER>("WAV_SER"),
    wave<&Wave::WAV_CH>("WAV_CH"),
    wave<&Wave::WAV_ONOFF>("WAV_ONOFF"),
    wave<&Wave::WAV_SPEED>("WAV_SPEED"),
    wave<&Wave::WAV_FULL>("WAV_FULL"),
    wave<&Wave::WAV_OFFSET>("WAV_OFFSET"),
    wave<&Wave::WAV_CUP_VALUE>("WAV_CUP_VALUE"),
    wave<&Wave::WAV_CUP_ON>("WAV_CUP_ON"),
    wave<&Wave::WAV_CVAL_ONOFF>("WAV_CVAL_ONOFF"),
    wave<&Wave::WAV_CVAL_UP>("WAV_CVAL_UP"),
    wave<&Wave::WAV_CVALDOWN>("WAV_CVALDOWN"),
    axis<&XY::XY_SER, 0>("XY_SER"),
    axis<&XY::XY_CH, 0>("XY_CH"),
    xy<&XY::XY_ONOFF>("XY_ONOFF"),
    xy<&XY::XY_SPEED>("XY_SPEED"),
    axis<&XY::XY_FULL, 0>("XY_FULL"),
    axis<&XY::XY_OFFSET, 0>("XY_OFFSET"),
    xy<&XY::XY_CVAL_ONOFF>("XY_CVAL_ONOFF"),
    axis<&XY::XY_CVAL_UP, 0>("XY_CVAL_UP"),
    axis<&XY::XY_CVALDOWN, 0>("XY_CVALDOWN"),
    axis<&XY::XY_SER, 1>("XY_SUB_SER"),
    axis<&XY::XY_CH, 1>("XY_SUB_CH"),
    axis<&XY::XY_FULL, 1>("XY_SUB_FULL"),
    axis<&XY::XY_OFFSET, 1>("XY_SUB_OFFSET"),
    axis<&XY::XY_CVAL_UP, 1>("XY_SUB_CVAL_UP"),
    axis<&XY::XY_CVALDOWN, 1>("XY_SUB_CVAL_DOWN"),
    num<&Num::NUM_CAPTION>("NUM_CAPTION"),
    wave<&Wave::WAV_CAPTION>("WAV_CAPTION"),
    xy<&XY::XY_CAPTION>("XY_CAPTION"),
    num<&Num::NUM_TOP>("NUM_TOP"),
    num<&Num::NUM_LEFT>("NUM_LEFT"),
    num<&Num::NUM_HEIGHT>("NUM_HEIGHT"),
    num<&Num::NUM_WIDTH>("NUM_WIDTH"),
    wave<&Wave::WAV_TOP>("WAV_TOP"),
    wave<&Wave::WAV_LEFT>("WAV_LEFT"),
    wave<&Wave::WAV_HEIGHT>("WAV_HEIGHT"),
    wave<&Wave::WAV_WIDTH>("WAV_WIDTH"),
    xy<&XY::XY_TOP>("XY_TOP"),
    xy<&XY::XY_LEFT>("XY_LEFT"),
    xy<&XY::XY_HEIGHT>("XY_HEIGHT"),
    xy<&XY::XY_WIDTH>("XY_WIDTH"),
    bar<&Bar::BAR_CAPTION>("BAR_CAPTION"),
    bar<&Bar::BAR_TOP>("BAR_TOP"),
    bar<&Bar::BAR_LEFT>("BAR_LEFT"),
    bar<&Bar::BAR_HEIGHT>("BAR_HEIGHT"),
    bar<&Bar::BAR_WIDTH>("BAR_WIDTH"),
    bar<&Bar::BAR_ONOFF>("BAR_ONOFF"),
    bar<&Bar::BAR_SPEED>("BAR_SPEED"),
    bar<&Bar::BAR_BACK>("BAR_BACK"),
    bar<&Bar::BAR_C_BACK>("BAR_C_BACK"),
    bar<&Bar::BAR_GND>("BAR_GND"),
    bar<&Bar::BAR_GRID>("BAR_GRID"),
    bars<&Bar::BAR_SER, 0>("BAR_1ST_SER"),
    bars<&Bar::BAR_CH, 0>("BAR_1ST_CH"),
    bars<&Bar::BAR_FULL, 0>("BAR_1ST_FULL"),
    bars<&Bar::BAR_OFFSET, 0>("BAR_1ST_OFFSET"),
    bars<&Bar::BAR_CVAL_ONOFF, 0>("BAR_1ST_CVAL_ONOFF"),
    bars<&Bar::BAR_CVAL_UP, 0>("BAR_1ST_CVAL_UP"),
    bars<&Bar::BAR_CVAL_DOWN, 0>("BAR_1ST_CVAL_DOWN"),
    bars<&Bar::BAR_FORE, 0>("BAR_1ST_FORE"),
    bars<&Bar::BAR_CFORE, 0>("BAR_1ST_CFORE"),
    bars<&Bar::BAR_SER, 1>("BAR_2ND_SER"),
    bars<&Bar::BAR_CH, 1>("BAR_2ND_CH"),
    bars<&Bar::BAR_FULL, 1>("BAR_2ND_FULL"),
    bars<&Bar::BAR_OFFSET, 1>("BAR_2ND_OFFSET"),
    bars<&Bar::BAR_CVAL_ONOFF, 1>("BAR_2ND_CVAL_ONOFF"),
    bars<&Bar::BAR_CVAL_UP, 1>("BAR_2ND_CVAL_UP"),
    bars<&Bar::BAR_CVAL_DOWN, 1>("BAR_2ND_CVAL_DOWN"),
    bars<&Bar::BAR_FORE, 1>("BAR_2ND_FORE"),
    bars<&Bar::BAR_CFORE, 1>("BAR_2ND_CFORE"),
    bars<&Bar::BAR_SER, 2>("BAR_3RD_SER"),
    bars<&Bar::BAR_CH, 2>("BAR_3RD_CH"),
    bars<&Bar::BAR_FULL, 2>("BAR_3RD_FULL"),
    bars<&Bar::BAR_OFFSET, 2>("BAR_3RD_OFFSET"),
    bars<&Bar::BAR_CVAL_ONOFF, 2>("BAR_3RD_CVAL_ONOFF"),
    bars<&Bar::BAR_CVAL_UP, 2>("BAR_3RD_CVAL_UP"),
    bars<&Bar::BAR_CVAL_DOWN, 2>("BAR_3RD_CVAL_DOWN"),
    bars<&Bar::BAR_FORE, 2>("BAR_3RD_FORE"),
    bars<&Bar::BAR_CFORE, 2>("BAR_3RD_CFORE"),
    bars<&Bar::BAR_SER, 3>("BAR_4TH_SER"),
    bars<&Bar::BAR_CH, 3>("BAR_4TH_CH"),
    bars<&Bar::BAR_FULL, 3>("BAR_4TH_FULL"),
    bars<&Bar::BAR_OFFSET, 3>("BAR_4TH_OFFSET"),
    bars<&Bar::BAR_CVAL_ONOFF, 3>("BAR_4TH_CVAL_ONOFF"),
    bars<&Bar::BAR_CVAL_UP, 3>("BAR_4TH_CVAL_UP"),
    bars<&Bar::BAR_CVAL_DOWN, 3>("BAR_4TH_CVAL_DOWN"),
    bars<&Bar::BAR_FORE, 3>("BAR_4TH_FORE"),
    bars<&Bar::BAR_CFORE, 3>("BAR_4TH_CFORE"),
    circle<&Circle::CRL_CAPTION>("CRL_CAPTION"),
    circle<&Circle::CRL_TOP>("CRL_TOP"),
    circle<&Circle::CRL_LEFT>("CRL_LEFT"),
    circle<&Circle::CRL_HEIGHT>("CRL_HEIGHT"),
    circle<&Circle::CRL_WIDTH>("CRL_WIDTH"),
    circle<&Circle::CRL_ONOFF>("CRL_ONOFF"),
    circle<&Circle::CRL_SPEED>("CRL_SPEED"),
    circle<&Circle::CRL_BACK>("CRL_BACK"),
    circle<&Circle::CRL_C_BACK>("CRL_C_BACK"),
    circle<&Circle::CRL_GND>("CRL_GND"),
    circle<&Circle::CRL_GRID>("CRL_GRID"),
    circle<&Circle::CRL_SER>("CRL_SER"),
    circle<&Circle::CRL_CH>("CRL_CH"),
    circle<&Circle::CRL_FULL>("CRL_FULL"),
    circle<&Circle::CRL_OFFSET>("CRL_OFFSET"),
    circle<&Circle::CRL_CVAL_ONOFF>("CRL_CVAL_ONOFF"),
    circle<&Circle::CRL_CVAL_UP>("CRL_CVAL_UP"),
    circle<&Circle::CRL_CVAL_DOWN>("CRL_CVAL_DOWN"),
    circle<&Circle::CRL_FORE>("CRL_FORE"),
    circle<&Circle::CRL_C_FORE>("CRL_C_FORE"),
    single<gShowShortcut>("PIC_BAR_SHORTCUT"),
    single<gShowStatus>("PIC_BAR_STATUS"),
    single<gStatusMode>("STATUS_MODE"),
    single<gMainBox>("STATUS_MAINCH"),
    single<gStatusContents>("STATUS_CONTENTS"),
    single<gDefaultFolder>("DFLT_FOLDER"),
    // clang-format on
}};

constexpr std::size_t recordsOf(Kind kind) {
  switch (kind) {
    case Kind::kNumerical:
      return kNumMonitors;
    case Kind::kWave:
      return kWaveMonitors;
    case Kind::kXY:
      return kXYMonitors;
    case Kind::kBar:
      return kBarMonitors;
    case Kind::kCircle:
      return kCircleMonitors;
    case Kind::kSingle:
      return 1;
    case Kind::kReserved:
      break;
  }
  return 0;
}

std::string written(bool value) {
  return value ? "True" : "False";
}
std::string written(int32_t value) {
  return textOf(value);
}
std::string written(float value) {
  return textOf(value);
}
std::string written(const std::string& value) {
  return value;
}

std::string valueList(const ConfigKey& key) {
  std::string list;
  for (std::size_t record = 0; record < recordsOf(key.kind); ++record) {
    if (record > 0) list += ",";
    list += std::visit([](const auto* value) { return written(*value); }, key.slot(record));
  }
  return list;
}

bool store(std::string_view text, bool& value) {
  const std::string word = trim(text);
  if (equalNoCase(word, "True") || equalNoCase(word, "False")) {
    value = equalNoCase(word, "True");
    return true;
  }
  const auto number = readDouble(word);
  if (number) value = *number != 0;
  return number.has_value();
}
bool store(std::string_view text, int32_t& value) {
  const auto number = readWhole(text);
  if (number) value = *number;
  return number.has_value();
}
bool store(std::string_view text, float& value) {
  const auto number = readSingle(text);
  if (number) value = *number;
  return number.has_value();
}
bool store(std::string_view text, std::string& value) {
  value = text;
  return true;
}

/// The values of one key, cut up once; no more of them than there are records. A field beyond the
/// last is empty. The only field of a single key is its whole text: folder names may have commas.
class FieldList {
 public:
  FieldList(std::string text, std::size_t wanted) : text_(std::move(text)) {
    fields_.reserve(wanted);
    std::size_t start = 0;
    while (fields_.size() < wanted) {
      const std::size_t comma = wanted == 1 ? std::string::npos : text_.find(',', start);
      if (comma == std::string::npos) {
        fields_.push_back({start, text_.size() - start});
        return;
      }
      fields_.push_back({start, comma - start});
      start = comma + 1;
    }
  }
  std::string_view operator[](std::size_t index) const {
    if (index >= fields_.size()) return {};
    return std::string_view(text_).substr(fields_[index].start, fields_[index].length);
  }

 private:
  struct Field {
    std::size_t start;
    std::size_t length;
  };
  std::string text_;
  std::vector<Field> fields_;
};

/// Record by record, so that a value that cannot be read leaves whole records before it.
bool readKind(std::string_view text, Kind kind) {
  std::vector<const ConfigKey*> keys;
  std::vector<FieldList> lists;
  lists.reserve(kKeys.size());
  for (const ConfigKey& key : kKeys) {
    if (key.kind != kind) continue;
    keys.push_back(&key);
    lists.emplace_back(keyValue(text, std::string(key.name) + " "), recordsOf(kind));
  }
  for (std::size_t record = 0; record < recordsOf(kind); ++record) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const std::string_view field = lists[i][record];
      const auto take = [field](auto* value) { return store(field, *value); };
      if (!std::visit(take, keys[i]->slot(record))) return false;
    }
  }
  return true;
}

/// The panels exist for these numbers only.
void keepViewInRange() {
  gMainBox = validMainBox(gMainBox);
  if (gStatusMode != 1) gStatusMode = 0;
  if (gStatusContents < 0 || gStatusContents > 3) gStatusContents = 0;
}

}  // namespace

int32_t validMainBox(int32_t row) {
  return row >= 1 && row <= kBoxes ? row : 1;
}

std::string configText() {
  constexpr int32_t kWarning = 558;
  std::string text = LoadResString(kWarning + gResOffset) + "\r\n" +
                     LoadResString(kWarning + 1 + gResOffset) + "\r\n\r\nVK-480Q cfg.file\r\n";
  for (const ConfigKey& key : kKeys) {
    text += "\r\n" + std::string(key.name) + " " + valueList(key);
  }
  return text;
}

bool readConfigText(std::string_view text) {
  bool complete = true;
  for (const Kind kind :
       {Kind::kNumerical, Kind::kWave, Kind::kXY, Kind::kBar, Kind::kCircle, Kind::kSingle}) {
    complete = complete && readKind(text, kind);
  }
  keepViewInRange();
  return complete;
}

std::string_view configKeyName(int32_t number) {
  if (number < 0 || number >= kConfigKeys) return {};
  return kKeys[static_cast<std::size_t>(number)].name;
}

}  // namespace vk
