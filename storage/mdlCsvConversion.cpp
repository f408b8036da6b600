// SPDX-License-Identifier: MIT
#include "storage/mdlCsvConversion.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>
#include <tuple>

#include "base/clsDesktop.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "storage/mdlFileBox.h"
#include "storage/mdlSampleStream.h"
#include "storage/mdlWaveData.h"

namespace vk {

namespace {

constexpr int kMarks = 10;
/// Between the marks the window stays alive by a yield at these distances, which shows nothing.
constexpr int64_t kYieldMilliseconds = 100;
constexpr int64_t kNever = std::numeric_limits<int64_t>::max();

/// A file of that name, whatever the letter case of its "csv". Tried one by one: a divided
/// conversion asks thousands of times in a folder of thousands, and listing that each time would
/// take longer than the conversion.
bool isTaken(const std::string& path) {
  std::error_code error;
  for (std::size_t spelling = 0; spelling < 8; ++spelling) {
    std::string other = path;
    for (std::size_t i = 0; i < 3; ++i) {
      char& letter = other[other.size() - 1 - i];
      if ((spelling >> i & 1) != 0) letter = static_cast<char>(letter - 'a' + 'A');
    }
    if (std::filesystem::is_regular_file(other, error)) return true;
  }
  return false;
}

/// Collects what goes to a file, so that the system gets whole aligned pages.
class Output {
 public:
  explicit Output(std::size_t room)
      : bytes_(static_cast<char*>(::operator new[](kBlock + room, kAlignment))) {}

  [[nodiscard]] int32_t open(const std::string& path) {
    end_ = bytes_.get();
    return writer_.open(path);
  }
  char* end() const { return end_; }
  /// Where a block is full. `room` bytes more are there.
  const char* limit() const { return bytes_.get() + kBlock; }
  [[nodiscard]] int32_t wroteTo(char* end) {
    end_ = end;
    if (end_ < limit()) return kFileOk;
    const auto error = writer_.write(bytes_.get(), kBlock);
    const std::size_t rest = end_ - limit();
    std::memcpy(bytes_.get(), limit(), rest);
    end_ = bytes_.get() + rest;
    return error;
  }
  [[nodiscard]] int32_t write(std::string_view text) {
    while (!text.empty()) {
      const auto part = std::min(text.size(), static_cast<std::size_t>(limit() - end_));
      std::memcpy(end_, text.data(), part);
      text.remove_prefix(part);
      if (const auto error = wroteTo(end_ + part)) return error;
    }
    return kFileOk;
  }
  [[nodiscard]] int32_t commit(bool flush) {
    const std::size_t rest = end_ - bytes_.get();
    if (const auto error = writer_.write(bytes_.get(), rest)) return error;
    return flush ? writer_.commit() : writer_.commitUnflushed();
  }

 private:
  static constexpr std::size_t kBlock = 256u << 10;
  static constexpr std::align_val_t kAlignment{4096};
  struct Free {
    void operator()(char* bytes) const { ::operator delete[](bytes, kAlignment); }
  };
  std::unique_ptr<char[], Free> bytes_;
  char* end_ = nullptr;
  FileWriter writer_;
};

class Conversion {
 public:
  /// Throws TypeMismatch when the header holds something that cannot be used.
  Conversion(const CsvJob& job, const JobView& view)
      : job_(job),
        view_(view),
        samples_(toWhole(job.header[kNumSamps])),
        count_(std::max(job.options.divisionCount, 1)),
        lines_(slopesOf(job.header), job.options.scaled),
        output_(lines_.lineRoom()) {
    for (int i = 0; i < kMarks; ++i) {
      marks_[i] = roundWhole(static_cast<double>(samples_) / kMarks * (i + 1) - 2);
    }
  }

  int32_t run() {
    const bool done = convert();
    // What is finished stays, whatever came behind it.
    if (unflushed_) {
      const auto error = flushFolder(job_.folder);
      if (done && !fileDone(error, path_)) return kCardFailed;
    }
    if (done) return kCardOk;
    return canceled_ ? kCsvCanceled : kCardFailed;
  }

 private:
  bool convert() {
    const std::size_t frame = frameBytes(job_.header);
    if (!fileDone(source_.open(job_.source, frame), job_.source)) return false;
    if (!beginFile(job_.options.division ? 1 : 0, job_.askFirst)) return false;
    lastYield_ = desktop().milliseconds();
    while (sample_ < samples_) {
      if (!writeLines(std::min({samples_, fileEnd_, nextMark() + 1}))) return false;
      if (sample_ == fileEnd_ && !(endFile() && beginFile(number_ + 1, true))) return false;
      if (sample_ > nextMark() && !raiseMark()) return false;
    }
    if (!endFile()) return false;
    message("  conversion ended.");
    return yield();
  }
  bool beginFile(int32_t number, bool ask);
  bool endFile();
  std::string headOfFile() const;
  bool writeLines(int64_t stop);
  bool raiseMark();
  /// The sample behind which the next mark is raised; a sample raises one at most.
  int64_t nextMark() const {
    if (raised_ == kMarks) return kNever - 1;
    return std::max<int64_t>(int64_t{marks_[raised_]} + 1, lastRaised_ + 1);
  }
  bool yield() {
    const bool goOn = view_.yield();
    lastYield_ = desktop().milliseconds();
    canceled_ = !goOn && !desktop().ending();
    return goOn;
  }
  void message(const char* text) const { view_.tell(name_ + text); }

  const CsvJob& job_;
  const JobView& view_;
  const int64_t samples_;
  const int64_t count_;
  CsvLines lines_;
  Output output_;
  SampleStream source_;
  std::array<int32_t, kMarks> marks_{};
  std::size_t raised_ = 0;
  int64_t lastRaised_ = -1;
  int64_t sample_ = 0;  ///< the next one
  int32_t number_ = 0;
  int64_t fileEnd_ = kNever;  ///< the sample with which the next file begins
  std::string name_;
  std::string path_;
  bool replaces_ = false;   ///< the user gave up what stood under the file's name
  bool unflushed_ = false;  ///< files were finished whose flush is still to come
  bool canceled_ = false;   ///< by the user
  int64_t lastYield_ = 0;
};

std::string Conversion::headOfFile() const {
  if (number_ == 0) return csvHead(job_.header, 0, samples_ - 1);
  // The first file always says a whole one, even where the recording is shorter.
  const int64_t held = number_ == 1 ? count_ : std::min(count_, samples_ - sample_);
  return csvHead(csvPartHeader(job_.header, name_, held), sample_, sample_ + held - 1);
}

bool Conversion::beginFile(int32_t number, bool ask) {
  number_ = number;
  if (number > 0) fileEnd_ = number * count_;
  name_ = csvFileName(job_.stem, number);
  path_ = withBackslash(job_.folder) + name_;
  if (!fileDone(nameStaysInFolder(name_) ? kFileOk : kFileBadName, path_)) return false;
  const std::string head = headOfFile();
  replaces_ = isTaken(path_);
  canceled_ = replaces_ && ask && askOverwrite(path_) != 1;
  if (canceled_) return false;
  if (desktop().ending()) return false;
  lines_.restart();
  return fileDone(output_.open(path_), path_) && fileDone(output_.write(head), path_);
}

bool Conversion::endFile() {
  // Two flushes for each of thousands of new parts would take longer than all the rest.
  const bool flush = number_ == 0 || replaces_;
  if (!fileDone(output_.commit(flush), path_)) return false;
  unflushed_ = unflushed_ || !flush;
  if (replaces_) removeOtherSpellings(path_);
  return true;
}

bool Conversion::writeLines(int64_t stop) {
  while (sample_ < stop) {
    if (!fileDone(source_.more(), job_.source)) return false;
    const auto wanted = std::min(source_.count(), static_cast<std::size_t>(stop - sample_));
    const auto written = lines_.write(output_.end(), output_.limit(), source_.frames(), wanted);
    source_.take(written.lines);
    sample_ += written.lines;
    if (!fileDone(output_.wroteTo(written.end), path_)) return false;
    if (desktop().milliseconds() - lastYield_ >= kYieldMilliseconds && !yield()) return false;
  }
  return true;
}

bool Conversion::raiseMark() {
  lastRaised_ = sample_ - 1;
  view_.tellProgress(static_cast<double>(++raised_) / kMarks);
  message("  is being converted...");
  return yield();
}

}  // namespace

void showBadHeader() {
  showBox("Header File Error", "The contents of header file are not right.");
}

int32_t convertRecording(const CsvJob& job, const JobView& view) {
  try {
    return Conversion(job, view).run();
  } catch (const TypeMismatch&) {
    showBadHeader();
  } catch (const std::bad_alloc&) {
    std::ignore = fileDone(kFileNoMemory, job.source);
  }
  return kCardFailed;
}

}  // namespace vk
