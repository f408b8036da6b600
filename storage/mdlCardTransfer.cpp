// SPDX-License-Identifier: MIT
// The transfer of one recording. The data file is streamed: one block is in memory at a time.
#include <array>
#include <memory>

#include "base/clsDesktop.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"
#include "storage/mdlCardReading.h"
#include "storage/mdlFileBox.h"
#include "storage/mdlWaveOpenRequest.h"

namespace vk {

namespace {

constexpr int64_t kTransferUnit = 64;
constexpr std::size_t kPageBytes = 4096;
constexpr int kYieldsAfterFailure = 4;

/// The one buffer of a transfer. Page-aligned, so that a library can hand it to the bus as it is.
struct alignas(kPageBytes) Block {
  std::array<unsigned char, kBlockBytes> bytes;
};

std::string clockStem(const DateTime& time) {
  const auto two = [](int number) { return formatNumber(number, "00"); };
  return formatNumber(time.year, "0000") + "_" + two(time.month) + "_" + two(time.day) + "_" +
         two(time.hour) + "_" + two(time.minute) + "_" + two(time.second);
}

class Transfer {
 public:
  Transfer(CardReading& reading, ReadKind kind, std::size_t row)
      : reading_(reading), kind_(kind), file_(reading.files[row]) {}

  int32_t run() {
    desktop().setHourglass(true);
    const bool done = start() && fetchHeader() && fetchData() && writeHeader();
    if (done) message(file_.cardFileName + "  reading ended.");
    if (done && yield()) {
      desktop().setHourglass(false);
      return kCardOk;
    }
    desktop().setHourglass(false);
    for (int i = 0; i < kYieldsAfterFailure && yield(); ++i) continue;
    return kCardFailed;
  }

 private:
  bool start();
  bool fetchHeader();
  bool chooseTarget();
  bool fetchData();
  bool fetchBlocks(Block& block);
  bool fetchTail(Block& block);
  bool keepPartialData();
  bool writeHeader();

  static bool yield() {
    if (desktop().ending()) return false;
    desktop().doEvents();
    return !desktop().ending();
  }
  void message(const std::string& text) const {
    if (reading_.view.setMessage) reading_.view.setMessage(text);
  }
  void percent(int32_t number) {
    if (number == percentShown_) return;
    percentShown_ = number;
    if (reading_.view.setPercent) reading_.view.setPercent(number);
    if (reading_.view.setPercentText) reading_.view.setPercentText(textOf(number) + "%");
  }
  void listTemporary(const std::string& path) const {
    if (kind_ == kReadToSave || !reading_.view.appendTempFile) return;
    reading_.view.appendTempFile(path + "\r\n");
  }
  std::string dataPath() const { return target_ + ".dat"; }
  std::string headerPath() const { return target_ + ".hed"; }

  CardReading& reading_;
  const ReadKind kind_;
  const CardEntry file_;
  std::string target_;
  FileWriter data_;
  int32_t percentShown_ = -1;
};

bool Transfer::start() {
  if (!yield()) return false;
  percent(0);
  if (!yield()) return false;
  message(file_.cardFileName + "  Reading data file from the VK-480Q...");
  return yield();
}

bool Transfer::fetchHeader() {
  if (readHeader(reading_.serial, file_.cardFileName + ".HED", file_.headerSize,
                 reading_.headerText, reading_.header) == kCardOk) {
    return true;
  }
  showBox("Header File Error", "The contents of header file are not right.");
  return false;
}

bool Transfer::chooseTarget() {
  if (kind_ == kReadToSave) {
    const std::string stem = withoutExtension(file_.saveFileName);
    target_ = withBackslash(reading_.folder[0]) + stem;
    return fileDone(nameStaysInFolder(stem) ? kFileOk : kFileBadName, dataPath());
  }
  const std::string stem = clockStem(desktop().now());
  if (reading_.temporaryFolder.empty()) return fileDone(kFileOther, stem + ".dat");
  target_ = withBackslash(reading_.temporaryFolder) + stem;
  reading_.temporaryStem = target_;
  return true;
}

bool Transfer::fetchData() {
  if (!chooseTarget() || !fileDone(data_.open(dataPath()), dataPath())) return false;
  if (usbDAT(reading_.serial, file_.cardFileName) != kUsbOk) {
    showBox("Data File Error", "Cannot read Data file.");
    return false;
  }
  const auto block = std::make_unique<Block>();
  if (!fetchBlocks(*block) || !fetchTail(*block)) return false;
  if (!fileDone(data_.commit(), dataPath())) return false;
  listTemporary(dataPath());
  return true;
}

bool Transfer::fetchBlocks(Block& block) {
  const int64_t blocks = file_.size / kBlockBytes;
  for (int64_t i = 0; i < blocks; ++i) {
    if (usbReadBlock(reading_.serial, block.bytes.data(), kBlockBytes) < 1) {
      return keepPartialData();
    }
    if (!fileDone(data_.write(block.bytes.data(), kBlockBytes), dataPath())) return false;
    percent(roundWhole(static_cast<double>(i) / static_cast<double>(blocks) * 100));
    if (!yield()) return false;
  }
  return true;
}

bool Transfer::fetchTail(Block& block) {
  const int64_t rest = file_.size % kBlockBytes;
  if (rest <= 0) return true;
  const int64_t asked = (rest + kTransferUnit - 1) / kTransferUnit * kTransferUnit;
  // A count of 0 passes: what the buffer holds then is written.
  if (usbReadBlock(reading_.serial, block.bytes.data(), static_cast<int32_t>(asked)) < 0) {
    return keepPartialData();
  }
  return fileDone(data_.write(block.bytes.data(), static_cast<std::size_t>(rest)), dataPath());
}

/// What came of a broken transfer stays under its name.
bool Transfer::keepPartialData() {
  // Saving asks the user how to go on; the wave view has the label only.
  if (kind_ == kReadToView) message("Communication Error has occurred.");
  if (!desktop().ending()) static_cast<void>(fileDone(data_.commit(), dataPath()));
  return false;
}

bool Transfer::writeHeader() {
  std::string text = reading_.headerText;
  if (kind_ == kReadToSave) {
    // The column is empty when the header could not be read at opening: nothing was edited then.
    if (!file_.seriesText.empty()) reading_.header[kSeries] = file_.seriesText;
    text = headerToText(reading_.header, headerPath());
  }
  percent(100);
  if (!yield() || !fileDone(writeTextFile(headerPath(), text), headerPath())) return false;
  listTemporary(headerPath());
  if (kind_ == kReadToSave) {
    removeOtherSpellings(dataPath());
    removeOtherSpellings(headerPath());
  }
  return true;
}

}  // namespace

int32_t readDataFile(CardReading& reading, ReadKind kind, std::size_t row) {
  if (row >= reading.files.size() || reading.busy) return kCardFailed;
  const FlagGuard busy(reading.busy);
  return Transfer(reading, kind, row).run();
}

int32_t readForWaveView(CardReading& reading, std::size_t row) {
  if (readDataFile(reading, kReadToView, row) != kCardOk) return kCardFailed;
  resetWaveOpenRequest();
  const HeaderRecord& header = reading.header;
  const int32_t numSeries = toWhole(header[kNumSeries]);
  std::string channels;
  for (int32_t channel = 1; channel <= numSeries; ++channel) channels += textOf(channel) + ",";
  waveOpenRequest.fileName[0] = reading.temporaryStem;
  waveOpenRequest.channelList[0] = dropLastComma(channels);
  waveOpenRequest.seriesInFile[0] = numSeries;
  waveOpenRequest.firstDataNumber = 1;
  waveOpenRequest.lastDataNumber = toWhole(header[kNumSamps]);
  waveOpenRequest.rate = toWhole(header[kRate]);
  waveOpenRequest.startStamp = header[kDate] + "," + header[kTime];
  return kCardOk;
}

}  // namespace vk
