// SPDX-License-Identifier: MIT
#include "shell/mdlConfigText.h"

#include <iterator>
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

/// A key of the file and how many values it has: the records of a monitor kind (by its place among
/// the kinds), one, or none for a key that is written with an empty value and never read.
struct ConfigKey {
  static constexpr std::size_t kSingle = kMonitorRows.size();
  static constexpr std::size_t kReserved = kSingle + 1;

  std::string_view name;
  ValueSlot (*slot)(std::size_t record);
  std::size_t kind;
  std::size_t values;
};

template <auto& Global>
ValueSlot globalOf(std::size_t) {
  return &Global;
}
template <auto& Global>
constexpr ConfigKey single(std::string_view name) {
  return {name, globalOf<Global>, ConfigKey::kSingle, 1};
}
constexpr ConfigKey reserved(std::string_view name) {
  return {name, nullptr, ConfigKey::kReserved, 0};
}

constexpr ConfigKey kReservedKeys[] = {reserved("MES_BACK"), reserved("MES_FORE"),
                                       reserved("MES_CUR1"), reserved("MES_CUR2"),
                                       reserved("MES_POINT")};
constexpr ConfigKey kSingleKeys[] = {
    single<gShowShortcut>("PIC_BAR_SHORTCUT"),  single<gShowStatus>("PIC_BAR_STATUS"),
    single<gStatusMode>("STATUS_MODE"),         single<gMainBox>("STATUS_MAINCH"),
    single<gStatusContents>("STATUS_CONTENTS"), single<gDefaultFolder>("DFLT_FOLDER")};

void addGroup(std::vector<ConfigKey>& keys, KeyGroup group) {
  for (std::size_t kind = 0; kind < kMonitorRows.size(); ++kind) {
    for (const auto& key : kMonitorRows[kind]->keys) {
      if (key.group == group) keys.push_back({key.name, key.slot, kind, kMonitorRows[kind]->count});
    }
  }
}

std::vector<ConfigKey> collectKeys() {
  std::vector<ConfigKey> keys;
  addGroup(keys, KeyGroup::kColours);
  keys.insert(keys.end(), std::begin(kReservedKeys), std::end(kReservedKeys));
  for (const auto group :
       {KeyGroup::kSettings, KeyGroup::kCaptions, KeyGroup::kPlaces, KeyGroup::kLater})
    addGroup(keys, group);
  keys.insert(keys.end(), std::begin(kSingleKeys), std::end(kSingleKeys));
  return keys;
}

/// Every key of the file, in its order.
const std::vector<ConfigKey>& configKeys() {
  static const auto keys = collectKeys();
  return keys;
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
  for (std::size_t record = 0; record < key.values; ++record) {
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
bool readKind(std::string_view text, std::size_t kind) {
  std::vector<const ConfigKey*> keys;
  std::vector<FieldList> lists;
  std::size_t records = 0;
  for (const ConfigKey& key : configKeys()) {
    if (key.kind != kind) continue;
    records = key.values;
    keys.push_back(&key);
    lists.emplace_back(keyValue(text, std::string(key.name) + " "), records);
  }
  for (std::size_t record = 0; record < records; ++record) {
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
  for (const ConfigKey& key : configKeys()) {
    text += "\r\n" + std::string(key.name) + " " + valueList(key);
  }
  return text;
}

bool readConfigText(std::string_view text) {
  bool complete = true;
  for (std::size_t kind = 0; kind <= ConfigKey::kSingle; ++kind)
    complete = complete && readKind(text, kind);
  keepViewInRange();
  return complete;
}

int32_t configKeyCount() {
  return static_cast<int32_t>(configKeys().size());
}

std::string_view configKeyName(int32_t number) {
  if (number < 0 || number >= configKeyCount()) return {};
  return configKeys()[number].name;
}

}  // namespace vk
