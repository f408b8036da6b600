// SPDX-License-Identifier: MIT
// What a conversion to CSV costs: four series of five million samples on a memory file system, in
// processor time. "write" hands the system as many bytes from a buffer that is in the cache and
// does nothing else; "to_chars" is the plain way, which formats every value. "signals" are four
// noisy sines of different slopes, "random" words fill the whole range, which suits a cache of
// texts least. "divided" makes a thousand files of the recording. "peakKiB" is by how much the
// resident memory grew while converting.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "storage/mdlCsvConversion.h"
#include "tests/support/fake_desktop.h"

namespace {

namespace fs = std::filesystem;

constexpr int kSeries = 4;
constexpr int kSamples = 5'000'000;
constexpr std::size_t kBlock = 256u << 10;
constexpr float kSlopes[kSeries] = {0.0305185F, 0.5F, 1.25F, 0.001F};

class Folder {
 public:
  Folder() {
    const fs::path parent = fs::is_directory("/dev/shm") ? "/dev/shm" : fs::temp_directory_path();
    std::string name = (parent / "vkbenchXXXXXX").string();
    if (mkdtemp(name.data()) != nullptr) path = name;
  }
  ~Folder() {
    std::error_code ignored;
    if (!path.empty()) fs::remove_all(path, ignored);
  }
  fs::path path;
};

int16_t wordOf(bool random, int sample, int series, std::mt19937& noise) {
  if (random) return static_cast<int16_t>(noise());
  const double wave = std::sin(sample * 0.0001 * (series + 1)) * 12000;
  return static_cast<int16_t>(wave + static_cast<int>(noise() % 64));
}

/// A recording in a memory folder, and the size of its CSV.
class Recording {
 public:
  explicit Recording(bool random) {
    std::vector<int16_t> words;
    words.reserve(std::size_t{kSamples} * kSeries);
    std::mt19937 noise(1);
    for (int i = 0; i < kSamples; ++i)
      for (int c = 0; c < kSeries; ++c) words.push_back(wordOf(random, i, c, noise));
    std::ofstream file(data(), std::ios::binary);
    file.write(reinterpret_cast<const char*>(words.data()),
               static_cast<std::streamsize>(words.size() * sizeof(int16_t)));
  }
  vk::CsvJob job() const {
    vk::CsvJob job;
    job.header.field = {"A",          "1",        "A,B,C,D",
                        "01-05-2026", "09:30:00", "1000",
                        "V,V,V,V",    "SEC",      "4",
                        "INTERLACED", "INTEGER",  "0.0305185,0.5,1.25,0.001",
                        "0,0,0,0",    "0",        std::to_string(kSamples)};
    job.source = data();
    job.folder = folder_.path.string();
    job.stem = "A";
    return job;
  }
  std::string data() const { return folder_.path / "A.dat"; }
  void removeFiles() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder_.path)) {
      if (entry.path().extension() == ".csv") files.push_back(entry.path());
    }
    for (const auto& file : files) fs::remove(file);
  }
  std::string csv() const { return folder_.path / "A.csv"; }

 private:
  Folder folder_;
};

int64_t statusLine(const std::string& key) {
  std::ifstream file("/proc/self/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(key)) return std::atoll(line.c_str() + key.size());
  }
  return 0;
}

bool convert(const Recording& recording) {
  return vk::convertRecording(recording.job(), {}) == vk::kCardOk;
}

bool convertDivided(const Recording& recording) {
  vk::CsvJob job = recording.job();
  job.options.division = true;
  return vk::convertRecording(job, {}) == vk::kCardOk;
}

bool writeOnly(const Recording& recording, std::size_t bytes) {
  static const std::vector<char> block(kBlock, '1');
  const int file = open(recording.csv().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  bool done = file >= 0;
  while (done && bytes > 0) {
    const auto count = write(file, block.data(), std::min(bytes, kBlock));
    done = count > 0;
    if (done) bytes -= static_cast<std::size_t>(count);
  }
  if (file >= 0) close(file);
  return done;
}

bool toChars(const Recording& recording) {
  std::FILE* in = std::fopen(recording.data().c_str(), "rb");
  std::FILE* out = std::fopen(recording.csv().c_str(), "wb");
  if (!in || !out) return false;
  std::vector<int16_t> frames(std::size_t{kSeries} * 16384);
  std::string text(kBlock, '\0');
  char* next = text.data();
  int line = 0;
  while (const auto words = std::fread(frames.data(), sizeof(int16_t), frames.size(), in)) {
    for (std::size_t i = 0; i < words; i += kSeries) {
      next = std::to_chars(next, next + 16, ++line).ptr;
      for (std::size_t c = 0; c < kSeries; ++c) {
        *next++ = ',';
        const float value = static_cast<float>(frames[i + c]) * kSlopes[c];
        next = std::to_chars(next, next + 32, value, std::chars_format::general, 7).ptr;
      }
      *next++ = '\r';
      *next++ = '\n';
      if (next - text.data() < static_cast<std::ptrdiff_t>(kBlock - 256)) continue;
      std::fwrite(text.data(), 1, static_cast<std::size_t>(next - text.data()), out);
      next = text.data();
    }
  }
  std::fwrite(text.data(), 1, static_cast<std::size_t>(next - text.data()), out);
  std::fclose(in);
  return std::fclose(out) == 0;
}

void run(benchmark::State& state, const Recording& recording, auto work) {
  vktest::FakeDesktop desktop;
  if (!convert(recording)) return state.SkipWithError("no conversion to measure by");
  const auto bytes = fs::file_size(recording.csv());
  std::ofstream("/proc/self/clear_refs") << "5";
  const int64_t before = statusLine("VmRSS:");
  for (auto _ : state) {
    state.PauseTiming();
    recording.removeFiles();
    state.ResumeTiming();
    if (!work(recording, bytes)) return state.SkipWithError("failed");
  }
  state.counters["peakKiB"] = static_cast<double>(statusLine("VmHWM:") - before);
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes));
}

void add(const std::string& name, bool random, auto work) {
  const auto measured = [random, work](benchmark::State& state) {
    run(state, Recording(random), work);
  };
  benchmark::RegisterBenchmark((name + (random ? "/random" : "/signals")).c_str(), measured)
      ->Unit(benchmark::kMillisecond)
      ->Iterations(5);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  for (const bool random : {false, true}) {
    add("write", random,
        [](const Recording& recording, std::size_t bytes) { return writeOnly(recording, bytes); });
    add("convert", random, [](const Recording& recording, auto) { return convert(recording); });
    add("divided", random,
        [](const Recording& recording, auto) { return convertDivided(recording); });
    add("to_chars", random, [](const Recording& recording, auto) { return toChars(recording); });
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
