// SPDX-License-Identifier: MIT
#include "storage/mdlCardTransfer.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <tuple>

#include "base/clsDesktop.h"
#include "base/mdlEncoding.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"
#include "storage/mdlFileBox.h"
#include "storage/mdlTempFiles.h"

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

/// The data file is streamed: one block is in memory at a time.
class Transfer {
 public:
  Transfer(const CardFetch& what, const JobView& view) : what_(what), view_(view) {}

  CardFetched run() {
    {
      const HourglassGuard hourglass;
      const bool done = start() && fetchHeader() && fetchData() && writeHeader() && nameBoth();
      if (done) view_.tell(what_.file.cardFileName + "  reading ended.");
      if (done && yield()) fetched_.result = kCardOk;
    }
    if (fetched_.result != kCardOk) {
      for (int i = 0; i < kYieldsAfterFailure && !desktop().ending(); ++i) desktop().doEvents();
    }
    return fetched_;
  }

 private:
  bool start();
  bool fetchHeader();
  bool chooseTarget();
  bool fetchData();
  bool fetchBlocks();
  bool readNext();
  bool store(std::size_t count);
  void dropRest();
  bool keepPartialData();
  bool writeHeader();
  bool nameBoth();

  [[nodiscard]] bool yield() const { return view_.yield(); }
  void progressOfBlocks() const {
    const int64_t blocks = what_.file.size / kBlockBytes;
    const int64_t block = read_ / kBlockBytes - 1;
    if (block < 0) return;
    view_.tellProgress(static_cast<double>(block) / blocks);
  }
  std::string dataPath() const { return fetched_.stem + ".dat"; }
  std::string headerPath() const { return fetched_.stem + ".hed"; }

  const CardFetch what_;
  const JobView& view_;
  CardFetched fetched_;
  std::string headerText_;
  std::unique_ptr<Block> block_;
  int64_t read_ = 0;  ///< bytes of the file that the box has sent
  FileWriter data_;
  FileWriter header_;
};

bool Transfer::start() {
  if (!yield()) return false;
  view_.tellProgress(0);
  if (!yield()) return false;
  view_.tell(what_.file.cardFileName + "  Reading data file from the VK-480Q...");
  return yield();
}

bool Transfer::fetchHeader() {
  if (readHeader(what_.serial, what_.file.cardFileName + ".HED", what_.file.headerSize, headerText_,
                 fetched_.header) == kCardOk) {
    return true;
  }
  showBox("Header File Error", "The contents of header file are not right.");
  return false;
}

bool Transfer::chooseTarget() {
  if (what_.kind == kReadToSave) {
    const std::string stem = withoutExtension(what_.file.saveFileName);
    fetched_.stem = withBackslash(what_.folder) + stem;
    return fileDone(nameStaysInFolder(stem) ? kFileOk : kFileBadName, dataPath());
  }
  const std::string stem = clockStem(desktop().now());
  if (what_.folder.empty()) return fileDone(kFileOther, stem + ".dat");
  fetched_.stem = withBackslash(what_.folder) + stem;
  return true;
}

bool Transfer::fetchData() {
  if (!chooseTarget() || !fileDone(data_.open(dataPath()), dataPath())) return false;
  if (usbDAT(what_.serial, what_.file.cardFileName) != kUsbOk) {
    showBox("Data File Error", "Cannot read Data file.");
    return false;
  }
  block_ = std::make_unique<Block>();
  return fetchBlocks() && fileDone(data_.prepare(), dataPath());
}

bool Transfer::fetchBlocks() {
  while (read_ < what_.file.size) {
    const int64_t rest = what_.file.size - read_;
    if (!readNext()) return keepPartialData();
    if (!store(std::min<int64_t>(rest, kBlockBytes))) return false;
    if (rest < kBlockBytes) continue;
    progressOfBlocks();
    if (yield()) continue;
    dropRest();
    return false;
  }
  return true;
}

/// The next block, or what is left for the last one. False when the box did not send it.
bool Transfer::readNext() {
  const int64_t rest = what_.file.size - read_;
  const bool whole = rest >= kBlockBytes;
  const int64_t asked =
      whole ? kBlockBytes : (rest + kTransferUnit - 1) / kTransferUnit * kTransferUnit;
  const int32_t count = usbReadBlock(what_.serial, block_->bytes.data(), asked);
  // Of the last one a count of 0 passes: what the buffer holds then is written.
  if (count < (whole ? 1 : 0)) return false;
  read_ += std::min(rest, asked);
  return true;
}

bool Transfer::store(std::size_t count) {
  const int32_t error = data_.write(block_->bytes.data(), count);
  if (error != kFileOk) dropRest();
  return fileDone(error, dataPath());
}

/// Reads to the end of the file what nobody wants any more.
void Transfer::dropRest() {
  data_.discard();  // a full disk has room again at once
  if (read_ < what_.file.size)
    view_.tell(what_.file.cardFileName + "  is being read to its end...");
  while (read_ < what_.file.size && !desktop().ending() && readNext()) {
    progressOfBlocks();
    std::ignore = yield();  // stopped or not, the rest has to come
  }
}

/// What came of a broken transfer stays under its name.
bool Transfer::keepPartialData() {
  // Saving asks the user how to go on; the wave view has the label only.
  if (what_.kind == kReadToView) view_.tell("Communication Error has occurred.");
  if (!desktop().ending()) std::ignore = fileDone(data_.commit(), dataPath());
  return false;
}

bool Transfer::writeHeader() {
  std::string text = headerText_;
  if (what_.kind == kReadToSave) {
    HeaderRecord header = fetched_.header;
    // The column is empty when the header could not be read at opening: nothing was edited then.
    if (!what_.file.seriesText.empty()) header[kSeries] = what_.file.seriesText;
    // The file's own name stands in it, in the encoding of the rest.
    const std::string name = std::filesystem::path(headerPath()).filename().string();
    text = headerToText(header, isUtf8(headerText_) ? name : toLatin1(name).value_or(name));
  }
  view_.tellProgress(1);
  return yield() && fileDone(header_.open(headerPath()), headerPath()) &&
         fileDone(header_.write(text + "\r\n"), headerPath()) &&
         fileDone(header_.prepare(), headerPath());
}

/// Right one behind the other, so that hardly a crash leaves a new file beside an old one.
bool Transfer::nameBoth() {
  // It is flushed; the header's commit flushes both names.
  if (!fileDone(data_.commitUnflushed(), dataPath())) return false;
  if (!fileDone(header_.commit(), headerPath())) return false;
  if (what_.kind == kReadToSave) {
    removeOtherSpellings(dataPath());
    removeOtherSpellings(headerPath());
  } else {
    gTempFileList += dataPath() + "\r\n" + headerPath() + "\r\n";
  }
  return true;
}

}  // namespace

CardFetched readDataFile(const CardFetch& what, const JobView& view) {
  return Transfer(what, view).run();
}

WaveOpenRequest waveRequestOf(const CardFetched& fetched) {
  const int32_t numSeries = toWhole(fetched.header[kNumSeries]);
  std::string channels;
  for (int32_t channel = 1; channel <= numSeries; ++channel) channels += textOf(channel) + ",";
  WaveOpenRequest request;
  request.fileName[0] = fetched.stem;
  request.channelList[0] = dropLastComma(channels);
  request.seriesInFile[0] = numSeries;
  request.firstDataNumber = 1;
  request.lastDataNumber = toWhole(fetched.header[kNumSamps]);
  request.rate = toWhole(fetched.header[kRate]);
  request.startStamp = fetched.header[kDate] + "," + fetched.header[kTime];
  return request;
}

}  // namespace vk
