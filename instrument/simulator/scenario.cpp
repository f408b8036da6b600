// SPDX-License-Identifier: MIT
#include "instrument/simulator/scenario.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

#include "instrument/simulator/numbers.h"

namespace vksim {
namespace {

constexpr Micros kLookEvery = kSecond / 10;
constexpr Micros kHour = 3600 * kSecond;

// Channel 1 of the master stays below its trigger level, so that the box waits for a manual
// trigger.
constexpr std::string_view kDefaultBus = R"(
[box 4810021]
model = VK-480Qe
role = master
signal1 = bridge 300 10000 640
signal2 = sine 1800 1000
signal3 = step 2500 2000
signal4 = noise 400
recording = 4 200U 16384
recording = 1 005U 32769
recording = 4 020U 524288
[box 4800137]
model = VK-480Q
role = slave
signal1 = sine 3000 500
signal2 = ramp 4000 5000
signal3 = bridge 900 2000 -350
signal4 = open
recording = 2 001M 60000
recording = 4 100U 8192
[box 2400052]
model = VK-240Q
role = slave
signal1 = ramp 4500 10000
signal2 = sine 2500 200
signal3 = noise 1200
signal4 = bridge 600 5000 120
recording = 4 500U 4096
recording = 4 200U 131072
)";

bool parseChoice(std::string_view value, const std::vector<std::string_view>& names,
                 std::size_t& index) {
  const auto found = std::find(names.begin(), names.end(), value);
  if (found == names.end()) return false;
  index = static_cast<std::size_t>(found - names.begin());
  return true;
}

bool parseFlag(std::string_view value, bool& flag) {
  std::size_t index = 0;
  if (!parseChoice(value, {"no", "yes"}, index)) return false;
  flag = index == 1;
  return true;
}

bool parseRecording(std::string_view value, BoxSetup& box) {
  const auto items = words(value);
  if (items.size() != 3) return false;
  const auto channels = digits(items[0]);
  const auto interval = parseInterval(items[1]);
  const auto frames = digits(items[2]);
  if (!channels || (*channels != 1 && *channels != 2 && *channels != 4) || !interval || !frames ||
      *frames < 1 || *frames > (1LL << 30) / *channels)
    return false;
  box.recordings.push_back({static_cast<int>(*channels), items[1], *frames});
  return true;
}

// "error.RUN = 10 x2": kind, command, number, times.
bool parseFault(std::string_view key, std::string_view value, std::vector<Fault>& faults) {
  static const std::vector<std::string_view> kKinds = {"error", "late", "short", "garble",
                                                       "write", "read", "block", "directory"};
  const auto point = key.find('.');
  std::size_t kind = 0;
  if (!parseChoice(key.substr(0, point), kKinds, kind)) return false;
  Fault fault;
  fault.kind = static_cast<FaultKind>(kind);
  if (point != std::string_view::npos) {
    fault.command = key.substr(point + 1);
    if (fault.command.size() != 3) return false;
  }
  auto items = words(value);
  if (items.size() == 2 && items[1].starts_with('x')) {
    const auto times = digits(std::string_view(items[1]).substr(1));
    if (!times || *times > 1000000) return false;
    fault.times = static_cast<int>(*times);
    items.pop_back();
  }
  const auto number = items.size() == 1 ? whole(items[0]) : std::nullopt;
  if (!number || std::abs(*number) > 100000000) return false;
  if (fault.kind == FaultKind::kError && (*number < 0 || *number > 99)) return false;
  if (fault.kind == FaultKind::kDirectory && (*number < 1 || *number > 5)) return false;
  fault.number = static_cast<int>(*number);
  faults.push_back(std::move(fault));
  return true;
}

bool parseCard(std::string_view value, BoxSetup& box) {
  std::size_t index = 0;
  if (!parseChoice(value, {"in", "out", "full"}, index)) return false;
  box.cardInserted = index != 1;
  box.cardFull = index == 2;
  return true;
}

bool parseFour(std::string_view value, std::vector<std::string>& items) {
  auto parts = split(value, ',');
  if (parts.size() != kChannels) return false;
  items = std::move(parts);
  return true;
}

bool parseSize(std::string_view value, int& megabytes) {
  const auto number = digits(value);
  if (!number || *number < 1 || *number > 4095) return false;
  megabytes = static_cast<int>(*number);
  return true;
}

bool parseBoxSignal(std::string_view key, std::string_view value, BoxSetup& box) {
  const auto channel = digits(key.substr(6));
  const auto signal = parseSignal(value);
  if (!channel || *channel < 1 || *channel > kChannels || !signal) return false;
  box.signals[*channel - 1] = *signal;
  return true;
}

bool parseRom(std::string_view value, std::string& rom) {
  if (value.size() != 4) return false;
  rom = value;
  return true;
}

bool setBoxKey(std::string_view key, std::string_view value, BoxSetup& box) {
  std::size_t index = 0;
  if (key == "model") {
    const auto model = modelNamed(value);
    if (model) box.model = *model;
    return model.has_value();
  }
  if (key == "role") {
    if (!parseChoice(value, {"master", "slave"}, index)) return false;
    box.role = index == 0 ? Role::kMaster : Role::kSlave;
    return true;
  }
  if (key == "card_speed") {
    if (!parseChoice(value, {"fast", "medium", "slow"}, index)) return false;
    box.cardSpeed = static_cast<CardSpeed>(index);
    return true;
  }
  if (key == "conditions") {
    box.conditions = value;
    return !value.empty();
  }
  if (key == "plugged") return parseFlag(value, box.plugged);
  if (key == "upgrade_mode") return parseFlag(value, box.upgradeMode);
  if (key == "card") return parseCard(value, box);
  if (key == "card_mb") return parseSize(value, box.cardMegabytes);
  if (key == "units") return parseFour(value, box.units);
  if (key == "coefficients") return parseFour(value, box.coefficients);
  if (key == "boot_rom") return parseRom(value, box.bootRom);
  if (key == "main_rom") return parseRom(value, box.mainRom);
  if (key == "recording") return parseRecording(value, box);
  if (key.starts_with("signal")) return parseBoxSignal(key, value, box);
  return parseFault(key, value, box.faults);
}

bool setReal(std::string_view value, double least, double most, double& target) {
  const auto number = real(value);
  if (!number || *number < least || *number > most) return false;
  target = *number;
  return true;
}

class Parser {
 public:
  Parser() = default;
  explicit Parser(Scenario base) : scenario_(std::move(base)) {}
  void read(std::string_view text) {
    int number = 0;
    for (const std::string& line : split(text, '\n')) {
      ++number;
      const std::string_view content = trim(std::string_view(line).substr(0, line.find('#')));
      if (content.empty() || take(content)) continue;
      scenario_.problems.push_back(fmt::format("line {}: cannot use \"{}\"", number, content));
    }
  }
  Scenario finish() { return std::move(scenario_); }

 private:
  bool take(std::string_view line) {
    if (line.starts_with('[')) return openBox(line);
    const auto equals = line.find('=');
    if (equals == std::string_view::npos || skipping_) return skipping_;
    const std::string_view key = trim(line.substr(0, equals));
    const std::string_view value = trim(line.substr(equals + 1));
    return box_ ? setBoxKey(key, value, scenario_.boxes[*box_]) : setGlobal(key, value);
  }

  bool openBox(std::string_view line) {
    skipping_ = !line.starts_with("[box ") || !line.ends_with(']');
    if (skipping_) return false;
    const std::string id(trim(line.substr(5, line.size() - 6)));
    skipping_ = id.size() != 7 || !digits(id);
    if (skipping_) return false;
    auto& boxes = scenario_.boxes;
    const auto known =
        std::find_if(boxes.begin(), boxes.end(), [&](const BoxSetup& box) { return box.id == id; });
    box_ = static_cast<std::size_t>(known - boxes.begin());
    if (known == boxes.end()) boxes.emplace_back().id = id;
    return true;
  }

  bool setGlobal(std::string_view key, std::string_view value) {
    if (key == "latency_ms") return setReal(value, 0, 60000, scenario_.timing.exchangeMs);
    if (key == "transfer_mb_s")
      return setReal(value, 0.01, 100000, scenario_.timing.megabytesPerSecond);
    if (key == "speed") return setReal(value, 0.001, 100000, scenario_.speed);
    if (key != "bus") return false;
    std::size_t index = 0;
    if (!parseChoice(value, {"default", "empty"}, index)) return false;
    if (index == 1) scenario_.boxes.clear();
    return true;
  }

  Scenario scenario_;
  std::optional<std::size_t> box_;
  bool skipping_ = false;  // the keys of a section that could not be used
};

Recorder& addRecorder(const BoxSetup& setup, Bus& bus) {
  auto recorder = std::make_unique<Recorder>(setup.id, setup.model,
                                             static_cast<int>(digits(setup.id).value_or(0)));
  Recorder& box = *recorder;
  if (!setup.conditions.empty()) box.forceConditions(setup.conditions);
  for (std::size_t i = 0; i < kChannels; ++i) {
    box.inputs[i].signal = setup.signals[i];
    if (!setup.units.empty()) box.units[i] = setup.units[i];
    if (!setup.coefficients.empty()) box.coefficientTexts[i] = setup.coefficients[i];
  }
  box.bootRom = setup.bootRom;
  box.mainRom = setup.mainRom;
  bus.rig.recorders.push_back(std::move(recorder));
  return box;
}

// What lies on the card from before, one recording an hour, the last an hour ago.
void storeEarlier(const BoxSetup& setup, const TimeBase& base, Recorder& box) {
  auto hours = static_cast<Micros>(setup.recordings.size());
  for (const StoredRecording& stored : setup.recordings) {
    Recording recording;
    recording.conditions = *parseConditions(factoryConditions(box.model), box.model);
    if (box.conditions() != nullptr) recording.conditions = *box.conditions();
    recording.conditions.channels = stored.channels;
    recording.conditions.interval = parseInterval(stored.sampling).value_or(kSecond);
    recording.conditions.text.replace(0, 1, std::to_string(stored.channels));
    recording.conditions.text.replace(38, 4, stored.sampling);
    recording.inputs = box.inputs;
    recording.frames = stored.frames;
    const Micros date = base.calendar - hours-- * kHour;
    recording.startDate = dateTimeOf(date);
    const Micros interval = recording.conditions.interval;
    const DateTime written = dateTimeOf(date + stored.frames * interval);
    box.store(std::move(recording), written);
  }
}

void follow(const BoxSetup& setup, Recorder& box) {
  box.role = setup.role;
  box.plugged = setup.plugged;
  box.upgradeMode = setup.upgradeMode;
  box.card.inserted = setup.cardInserted;
  box.card.full = setup.cardFull;
  box.card.speed = setup.cardSpeed;
  box.card.capacity = static_cast<std::int64_t>(setup.cardMegabytes) << 20;
  for (std::size_t i = 0; i < kChannels; ++i) box.setSignal(i, setup.signals[i]);
  box.faults.clear();
  for (const Fault& fault : setup.faults) box.faults.add(fault);
}

// Changes when the file does; empty when there is none.
std::string stampOf(const std::filesystem::path& path) {
  std::error_code missing;
  const auto time = std::filesystem::last_write_time(path, missing);
  if (missing) return {};
  const auto size = std::filesystem::file_size(path, missing);
  if (missing) return {};
  return fmt::format("{} {}", time.time_since_epoch().count(), size);
}

}  // namespace

std::string_view defaultBus() {
  return kDefaultBus;
}

Scenario parseScenario(std::string_view text) {
  Parser defaults;
  defaults.read(kDefaultBus);
  Parser parser(defaults.finish());
  parser.read(text);
  return parser.finish();
}

void applyScenario(const Scenario& scenario, Bus& bus) {
  bus.catchUp();
  bus.timing = scenario.timing;
  bus.rig.setSpeed(scenario.speed);
  auto& recorders = bus.rig.recorders;
  std::erase_if(recorders, [&](const std::unique_ptr<Recorder>& recorder) {
    return std::none_of(scenario.boxes.begin(), scenario.boxes.end(),
                        [&](const BoxSetup& setup) { return setup.id == recorder->id; });
  });
  for (const BoxSetup& setup : scenario.boxes) {
    const auto known = std::find_if(recorders.begin(), recorders.end(),
                                    [&](const auto& one) { return one->id == setup.id; });
    if (known != recorders.end()) {
      follow(setup, **known);
      continue;
    }
    Recorder& box = addRecorder(setup, bus);
    follow(setup, box);
    storeEarlier(setup, bus.rig.base(), box);
  }
}

std::optional<Scenario> ScenarioWatch::poll(Micros now, std::vector<std::string>& problems) {
  if (!first_ && now - lastLook_ < kLookEvery) return std::nullopt;
  lastLook_ = now;
  std::string stamp = stampOf(path_);
  if (!first_ && stamp == stamp_) return std::nullopt;
  first_ = false;
  stamp_ = std::move(stamp);
  std::string text;
  if (!stamp_.empty()) {
    std::ifstream file(path_, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(file), {});
  }
  Scenario scenario = parseScenario(text);
  for (const std::string& problem : scenario.problems)
    if (told_.insert(problem).second) problems.push_back(path_.string() + ": " + problem);
  return scenario;
}

}  // namespace vksim
