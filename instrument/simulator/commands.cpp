// SPDX-License-Identifier: MIT
#include "instrument/simulator/commands.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "instrument/simulator/numbers.h"

namespace vksim {
namespace {

enum Refusal {
  kDuringMeasurement = 10,
  kParameter = 20,
  kUnknownCommand = 22,
  kProgramWrite = 30,
  kBalance = 42,
  kNoCard = 50,
  kNoSuchFile = 51,
  kCardNotClear = 53,
};

constexpr double kMostUnbalance = 10000;  // microstrain that the bridge circuit can take away
constexpr std::int64_t kSmallImage = 131072;
constexpr std::int64_t kBigImage = 393216;
constexpr int kInitialise = 48;  // ADJ: puts a channel back to its factory values

struct Call {
  Rig& rig;
  Recorder& box;
  std::string_view argument;
};

Answer text(std::string line, Micros busy = 0) {
  Answer answer;
  answer.text = std::move(line) + "\r\n";
  answer.busy = busy;
  return answer;
}

Answer end(Micros busy = 0) {
  return text("END", busy);
}

Answer refuse(int number) {
  Answer answer;
  answer.text = errorReply(number);
  return answer;
}

Answer endOr(int number) {
  return number == 0 ? end() : refuse(number);
}

// A channel argument, 0-based; the count when it is none.
std::size_t channelOf(std::string_view argument) {
  const auto number = argument.size() == 1 ? digits(argument) : std::nullopt;
  return number && *number >= 1 && *number <= kChannels ? static_cast<std::size_t>(*number - 1)
                                                        : kChannels;
}

Answer status(const Call& call) {
  if (call.argument != "20") return refuse(kParameter);
  const Recorder& box = call.box;
  const DateTime now = box.dateAt(call.rig.base().now, call.rig.base());
  std::string flags;
  for (const bool off : box.balanceOff) flags += off ? '1' : '0';
  return text(fmt::format(
      "{:02} {:02}/{:02}/{:02} {:02}:{:02}:{:02} {:02} {} {:07} {:<4.4} {:<4.4}",
      static_cast<int>(box.state()), now.year % 100, now.month, now.day, now.hour, now.minute,
      now.second, box.role == Role::kSlave ? 1 : 0, flags, box.serial, box.bootRom, box.mainRom));
}

Answer setClock(const Call& call) {
  std::string argument(call.argument);
  if (std::count(argument.begin(), argument.end(), '/') != 3 ||
      std::count(argument.begin(), argument.end(), ':') != 2)
    return refuse(kParameter);
  std::replace(argument.begin(), argument.end(), ':', '/');
  const auto items = split(argument, '/');
  std::array<int, 6> values{};
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto value = items[i].size() <= 2 ? digits(items[i]) : std::nullopt;
    if (!value) return refuse(kParameter);
    values[i] = static_cast<int>(*value);
  }
  const auto wanted =
      microsOf({2000 + values[0], values[1], values[2], values[3], values[4], values[5]});
  if (!wanted) return refuse(kParameter);
  call.box.clockCorrection = *wanted - call.rig.base().calendar;
  return end();
}

Answer setConditions(const Call& call) {
  return call.box.setConditions(call.argument) ? end() : refuse(kParameter);
}

Answer setUnits(const Call& call) {
  const auto items = split(call.argument, ',');
  const auto bad = [](const std::string& unit) { return unit.empty() || unit.size() > 6; };
  if (items.size() != kChannels || std::any_of(items.begin(), items.end(), bad))
    return refuse(kParameter);
  std::copy(items.begin(), items.end(), call.box.units.begin());
  return end();
}

Answer setCoefficients(const Call& call) {
  const auto items = split(call.argument, ',');
  const auto bad = [](const std::string& item) {
    const auto value = real(trim(item));
    return item.size() > 16 || !value || std::abs(*value) < 0.0000099999 ||
           std::abs(*value) > 9999999;
  };
  if (items.size() != kChannels || std::any_of(items.begin(), items.end(), bad))
    return refuse(kParameter);
  for (std::size_t i = 0; i < kChannels; ++i) call.box.coefficientTexts[i] = trim(items[i]);
  return end();
}

Answer list(const Call& call) {
  const Recorder& box = call.box;
  if (call.argument == "0") return text(box.conditionsText());
  if (call.argument == "1") return text(fmt::format("{}", fmt::join(box.units, ",")));
  if (call.argument == "2") return text(fmt::format("{}", fmt::join(box.coefficientTexts, ",")));
  return refuse(kParameter);
}

Answer checkCard(const Recorder& box) {
  if (!box.card.inserted) return refuse(kNoCard);
  if (!box.card.files.empty()) return refuse(kCardNotClear);
  switch (box.card.speed) {
    case CardSpeed::kFast:
      return text("000412,038250,000655,041730", 3 * kSecond);
    case CardSpeed::kMedium:
      return text("002130,095400,003870,101220", 3 * kSecond);
    case CardSpeed::kSlow:
      break;
  }
  return text("007945,163500,012480,214060", 3 * kSecond);
}

Answer check(const Call& call) {
  if (call.argument == "0" || call.argument == "1") return end(kSecond);
  if (call.argument == "2") {
    std::string open;
    for (const Input& input : call.box.inputs)
      open += input.signal.kind == SignalKind::kOpen ? '1' : '0';
    return text(open, kSecond);
  }
  if (call.argument == "3") return end(3 * kSecond);
  if (call.argument == "4") return checkCard(call.box);
  return refuse(kParameter);
}

Answer balance(const Call& call) {
  const std::size_t channel = channelOf(call.argument);
  Recorder& box = call.box;
  if (channel == kChannels || !box.isUsed(channel) || box.balanceOff[channel])
    return refuse(kParameter);
  Input& input = box.inputs[channel];
  if (input.signal.kind == SignalKind::kOpen || std::abs(input.signal.offset) > kMostUnbalance)
    return refuse(kBalance);
  input.zero = input.signal.offset;
  return end(kSecond / 5);
}

Answer switchBalance(const Call& call) {
  const std::string_view argument = call.argument;
  const std::size_t channel = channelOf(argument.substr(0, 1));
  if (argument.size() != 3 || channel == kChannels || argument[1] != ',' ||
      (argument[2] != '0' && argument[2] != '1'))
    return refuse(kParameter);
  call.box.balanceOff[channel] = argument[2] == '1';
  return end();
}

Answer monitor(const Call& call) {
  if (call.argument != "0") return refuse(kParameter);
  std::string fields;
  for (std::size_t c = 0; c < kChannels; ++c)
    fields += call.box.isUsed(c)
                  ? fmt::format("{:+06d}", call.box.liveReading(c, call.rig.base().now))
                  : "------";
  return text(fields);
}

Answer fileCount(const Call& call) {
  const Card& card = call.box.card;
  if (!card.inserted) return refuse(kNoCard);
  const Conditions* const conditions = call.box.conditions();
  const std::int64_t room =
      conditions != nullptr ? card.roomFor(conditions->samples * conditions->channels * 2) : 0;
  return text(fmt::format("{:03},{:03}", card.files.size(), room));
}

Answer format(const Call& call) {
  if (!call.box.card.inserted) return refuse(kNoCard);
  call.box.card.files.clear();
  if (call.box.state() == State::kNoCapacity) call.box.halt(call.rig.base());
  return end(kSecond);
}

Answer directory(const Call& call) {
  if (!call.box.card.inserted) return refuse(kNoCard);
  const int damage = call.box.faults.take(FaultKind::kDirectory, "RTD").value_or(0);
  Answer answer;
  answer.blocks =
      std::make_unique<TextSource>(call.box.card.directory(static_cast<DirectoryDamage>(damage)));
  return answer;
}

Answer headerFile(const Call& call) {
  if (!call.box.card.inserted) return refuse(kNoCard);
  // NAME, NAME.HED and NAME.DAT.HED all mean the header of NAME.
  std::string_view name = call.argument;
  if (name.ends_with(".HED")) {
    name.remove_suffix(4);
    if (name.ends_with(".DAT")) name.remove_suffix(4);
  }
  Answer answer;
  answer.blocks = call.box.card.open(std::string(name) + ".HED");
  return answer.blocks ? std::move(answer) : refuse(kNoSuchFile);
}

Answer dataFile(const Call& call) {
  Answer answer;
  if (call.box.card.inserted && call.argument.ends_with(".DAT"))
    answer.blocks = call.box.card.open(call.argument);
  if (answer.blocks) return answer;
  answer = refuse(call.box.card.inserted ? kNoSuchFile : kNoCard);
  answer.refusedFile = true;
  return answer;
}

Answer model(const Call& call) {
  if (call.box.model == Model::kVK240Q) return refuse(kUnknownCommand);
  return text(fmt::format("{:02}", static_cast<int>(call.box.model)));
}

Answer calibrate(const Call& call) {
  static constexpr std::array<double, 3> kShift = {0, 0.2, -0.2};  // 1 V of 5 V full scale
  if (!hasAnalogOutput(call.box.model)) return refuse(kUnknownCommand);
  const auto output = digits(call.argument);
  if (call.argument.size() != 1 || !output || *output > 2) return refuse(kParameter);
  for (Input& input : call.box.inputs) input.shift = kShift[*output];
  return end();
}

Answer writeSerial(const Call& call) {
  const auto serial = call.argument.size() == 7 ? digits(call.argument) : std::nullopt;
  if (!serial) return refuse(kParameter);
  call.box.serial = static_cast<int>(*serial);
  return end();
}

Answer adjust(const Call& call) {
  const auto items = split(call.argument, ',');
  if (items.size() != 2 && items.size() != 3) return refuse(kParameter);
  const std::size_t channel = channelOf(items[0]);
  const auto what = digits(items[1]);
  if (channel == kChannels || !what || *what > 99 || (items.size() == 3 && !whole(items[2])))
    return refuse(kParameter);
  if (*what == kInitialise)
    std::erase_if(call.box.adjustments,
                  [&](const std::string& done) { return done.starts_with(items[0]); });
  else
    call.box.adjustments.emplace_back(call.argument);
  return end();
}

Answer announceImage(const Call& call) {
  // Ten digits of size in packets, a comma, the number of the block.
  const std::string_view size = call.argument.substr(0, 11);
  const std::string_view number = call.argument.substr(size.size());
  const bool small = size == "0000002048,";
  if ((!small && size != "0000006144,") || number.size() != 1 || number < "1" || number > "3")
    return refuse(kParameter);
  Recorder& box = call.box;
  const std::int64_t bytes = small ? kSmallImage : kBigImage;
  const int block = number[0] - '0';
  if (block != 1 && (block != box.imageBlock + 1 || bytes != box.imageBytes))
    return refuse(kParameter);
  box.imageBlock = block;
  box.imageBytes = bytes;
  return end();
}

Answer run(const Call& call) {
  return endOr(call.rig.run(call.box));
}
Answer halt(const Call& call) {
  return endOr(call.rig.halt(call.box));
}
Answer trigger(const Call& call) {
  return endOr(call.rig.manualTrigger(call.box));
}

struct Command {
  std::string_view name;
  Answer (*answer)(const Call&);
  bool takesArgument;
  bool whileMeasuring;
  bool inUpgradeMode;
};

constexpr std::array<Command, 23> kCommands = {{
    {"STA", status, true, true, false},
    {"RTM", setClock, true, false, false},
    {"SET", setConditions, true, false, false},
    {"UNT", setUnits, true, false, false},
    {"CEF", setCoefficients, true, false, false},
    {"LST", list, true, true, false},
    {"CHK", check, true, false, false},
    {"BAL", balance, true, false, false},
    {"MON", monitor, true, true, false},
    {"RUN", run, false, true, false},
    {"HLT", halt, false, true, false},
    {"MTR", trigger, false, true, false},
    {"FLN", fileCount, false, true, false},
    {"FMT", format, false, false, false},
    {"RTD", directory, false, false, false},
    {"HFL", headerFile, true, false, false},
    {"DAT", dataFile, true, false, false},
    {"DMC", switchBalance, true, false, false},
    {"MET", model, false, true, true},
    {"CAL", calibrate, true, false, false},
    {"SLN", writeSerial, true, false, false},
    {"ADJ", adjust, true, false, false},
    {"PWE", announceImage, true, false, true},
}};

}  // namespace

std::string errorReply(int number) {
  return fmt::format("ERR,{:02}\r\n", number);
}

Answer answerCommand(Rig& rig, Recorder& recorder, std::string_view request) {
  const std::string_view name = request.substr(0, 3);
  const auto* const command =
      std::find_if(kCommands.begin(), kCommands.end(),
                   [&](const Command& one) { return !name.empty() && one.name == name; });
  if (command == kCommands.end()) return refuse(kUnknownCommand);
  const std::string_view argument = request.substr(3);
  if (recorder.upgradeMode && !command->inUpgradeMode) return refuse(kUnknownCommand);
  if (!command->takesArgument && !argument.empty()) return refuse(kUnknownCommand);
  if (recorder.isMeasuring() && !command->whileMeasuring) {
    Answer answer = refuse(kDuringMeasurement);
    answer.refusedFile = name == "DAT";
    return answer;
  }
  return command->answer({rig, recorder, argument});
}

Answer answerImage(Recorder& recorder, std::int64_t length) {
  const bool announced = recorder.imageBlock == 3;
  const bool whole = announced && length == recorder.imageBytes;
  recorder.imageBlock = 0;
  if (!announced) return refuse(kUnknownCommand);
  return whole ? end(5 * kSecond) : refuse(kProgramWrite);
}

}  // namespace vksim
