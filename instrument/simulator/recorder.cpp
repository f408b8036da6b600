// SPDX-License-Identifier: MIT
#include "instrument/simulator/recorder.h"

#include <algorithm>

#include "instrument/simulator/numbers.h"

namespace vksim {
namespace {

constexpr Micros kFileOverhead = kSecond / 10;  // opening and closing the pair on the card

}  // namespace

Recorder::Recorder(std::string boxId, Model boxModel, int boxSerial)
    : id(std::move(boxId)), model(boxModel), serial(boxSerial) {
  units.fill("ue");
  coefficientTexts.fill("1.000000");
  setConditions(factoryConditions(model));
}

bool Recorder::isMeasuring() const {
  return state_ == State::kArmed || state_ == State::kRecording || state_ == State::kWriting;
}

const Conditions* Recorder::conditions() const {
  return conditions_ ? &*conditions_ : nullptr;
}

bool Recorder::setConditions(std::string_view text) {
  auto wanted = parseConditions(text, model);
  if (!wanted) return false;
  conditions_ = std::move(wanted);
  conditionsText_ = text;
  if (state_ == State::kNoCapacity) state_ = State::kWaiting;
  return true;
}

void Recorder::forceConditions(std::string text) {
  conditions_ = parseConditions(text, model);
  conditionsText_ = std::move(text);
}

void Recorder::setSignal(std::size_t channel, const Signal& signal) {
  if (inputs[channel].signal == signal) return;
  inputs[channel].signal = signal;
  ownTrigger_.reset();
}

DateTime Recorder::dateAt(Micros moment, const TimeBase& base) const {
  const auto ago = static_cast<Micros>(static_cast<double>(base.now - moment) / base.speed);
  return dateTimeOf(base.calendar + clockCorrection - ago);
}

bool Recorder::isUsed(std::size_t channel) const {
  return conditions_ && channel < static_cast<std::size_t>(conditions_->channels);
}

int Recorder::liveReading(std::size_t channel, Micros now) const {
  return conditions_ ? readingAt(inputs[channel], conditions_->channel[channel], now) : 0;
}

bool Recorder::hasRoom() const {
  return conditions_ && card.inserted &&
         card.roomFor(conditions_->samples * conditions_->channels * 2) > 0;
}

void Recorder::arm(Micros now, bool continuing) {
  state_ = State::kArmed;
  continuing_ = continuing;
  armedAt_ = now;
  ownTrigger_.reset();
}

void Recorder::trigger(Micros now) {
  const Conditions& wanted = *conditions_;
  // The store before the trigger holds only what was sampled since the start.
  preFrames_ = std::min(wanted.preSamples(), (now - armedAt_) / wanted.interval);
  triggeredAt_ = now;
  running_ = {wanted, inputs, now - preFrames_ * wanted.interval, wanted.samples, {}};
  state_ = State::kRecording;
}

void Recorder::halt(const TimeBase& base) {
  continuing_ = false;
  switch (state_) {
    case State::kRecording:
      beginWriting(base, preFrames_ + (base.now - triggeredAt_) / running_.conditions.interval);
      break;
    case State::kArmed:
    case State::kNoCapacity:
      state_ = State::kWaiting;
      break;
    case State::kWaiting:
    case State::kWriting:
      break;
  }
}

std::optional<Micros> Recorder::nextEvent() {
  switch (state_) {
    case State::kArmed:
      if (role == Role::kSlave) return std::nullopt;
      if (!ownTrigger_) ownTrigger_ = findTrigger();
      return *ownTrigger_;
    case State::kRecording:
      return triggeredAt_ + (running_.frames - preFrames_) * running_.conditions.interval;
    case State::kWriting:
      return writtenAt_;
    case State::kWaiting:
    case State::kNoCapacity:
      break;
  }
  return std::nullopt;
}

void Recorder::step(const TimeBase& base) {
  if (state_ == State::kArmed) {
    trigger(base.now);
  } else if (state_ == State::kRecording) {
    beginWriting(base, running_.frames);
  } else if (state_ == State::kWriting) {
    // The card may have been taken out or have filled up meanwhile.
    if (card.inserted && card.roomFor(running_.dataBytes()) > 0)
      store(running_, dateAt(base.now, base));
    if (continuing_ && card.inserted && hasRoom())
      arm(base.now, true);
    else
      state_ = card.inserted && continuing_ ? State::kNoCapacity : State::kWaiting;
  }
}

void Recorder::store(Recording recording, const DateTime& written) {
  HeaderOrigin origin{card.nextStem(), model, serial, units, {}};
  for (std::size_t i = 0; i < kChannels; ++i)
    origin.coefficients[i] = real(coefficientTexts[i]).value_or(1);
  std::string header = headerText(recording, origin);
  card.files.push_back({origin.stem, std::move(header), std::move(recording), written});
}

bool Recorder::crosses(std::size_t channel, int before, int after) const {
  const ChannelConditions& wanted = conditions_->channel[channel];
  const double threshold = wanted.level * wanted.fullScale / 100;
  if (wanted.slope == Slope::kUp) return before < threshold && after >= threshold;
  if (wanted.slope == Slope::kDown) return before > threshold && after <= threshold;
  return false;
}

std::optional<Micros> Recorder::findTrigger() const {
  const Conditions& wanted = *conditions_;
  if (wanted.triggerMode == 'F') return armedAt_;
  std::optional<Micros> first;
  // Signals repeat, so that what does not cross within one period never does.
  const std::int64_t samples = kSignalPeriod / wanted.interval + 1;
  for (std::size_t c = 0; c < static_cast<std::size_t>(wanted.channels); ++c) {
    if (wanted.channel[c].slope == Slope::kOff) continue;
    int before = readingAt(inputs[c], wanted.channel[c], armedAt_);
    for (std::int64_t k = 1; k <= samples; ++k) {
      const Micros at = armedAt_ + k * wanted.interval;
      if (first && at >= *first) break;
      const int after = readingAt(inputs[c], wanted.channel[c], at);
      if (crosses(c, before, after)) first = at;
      before = after;
    }
  }
  return first;
}

void Recorder::beginWriting(const TimeBase& base, std::int64_t frames) {
  running_.frames = std::min(frames, running_.conditions.samples);
  running_.startDate = dateAt(running_.start, base);
  if (running_.frames == 0) {
    state_ = State::kWaiting;
    return;
  }
  const auto seconds = static_cast<double>(running_.dataBytes()) / card.bytesPerSecond();
  writtenAt_ = base.now + kFileOverhead + static_cast<Micros>(seconds * 1e6);
  state_ = State::kWriting;
}

}  // namespace vksim
