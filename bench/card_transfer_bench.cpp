// SPDX-License-Identifier: MIT
// How fast a recording of 500 MB comes from a simulated box without latency to the disk, beside a
// plain `cp` of the same file. The transfer flushes the file to the disk before it gets its name,
// which cp does not do; "cp_flushed" is cp followed by the same flush. Runs in the temporary folder
// and in /dev/shm. "peakKiB" is by how much the resident memory grew during the transfers.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "instrument/simulator/library.h"
#include "link/mdlCardDirectory.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "storage/mdlCardTransfer.h"
#include "tests/support/fake_desktop.h"

namespace {

namespace fs = std::filesystem;

constexpr int kSerial = 1234567;
constexpr int64_t kRecordingBytes = 500'000'000;

/// One box on the bus with one long recording on its card, on a clock that costs nothing.
class Box {
 public:
  explicit Box(const fs::path& folder) : bus_(clock_, 0) {
    auto recorder = std::make_unique<vksim::Recorder>("box", vksim::Model::kVK480Q, kSerial);
    recorder->card.capacity = 2 * kRecordingBytes;
    vksim::Recording recording;
    recording.conditions = *recorder->conditions();
    recording.inputs = recorder->inputs;
    recording.frames = kRecordingBytes / 2 / recording.conditions.channels;
    recording.startDate = {2026, 1, 5, 9, 30, 0};
    recorder->store(recording, recording.startDate);
    bus_.rig.recorders.push_back(std::move(recorder));
    vksim::attachBus(&bus_);
    vk::resetBoxTable();
    vk::gBoxTable[1].serial = kSerial;
    vk::gBoxTable[1].handle = 1;
    reading.serial = kSerial;
    reading.folder[0] = folder.string();
    ready = vk::usbRTD(kSerial) == vk::kUsbOk &&
            !(reading.files = vk::confirmHeaders(kSerial, vk::gCardDirectory, {})).empty() &&
            reading.files.front().size == kRecordingBytes;
  }
  ~Box() { vksim::attachBus(nullptr); }

  fs::path savedFile() const {
    const std::string stem = vk::withoutExtension(reading.files.front().saveFileName);
    return fs::path(reading.folder[0]) / (stem + ".dat");
  }

  int32_t save() {
    return vk::readDataFile({kSerial, reading.files.front(), vk::kReadToSave, reading.folder[0]},
                            {})
        .result;
  }

  vk::CardReading reading;
  bool ready = false;

 private:
  vktest::FakeDesktop desktop_;
  vksim::VirtualClock clock_;
  vksim::Bus bus_;
};

class Folder {
 public:
  explicit Folder(const fs::path& parent) {
    std::string name = (parent / "vkbenchXXXXXX").string();
    if (mkdtemp(name.data()) != nullptr) path = name;
  }
  ~Folder() {
    std::error_code ignored;
    if (!path.empty()) fs::remove_all(path, ignored);
  }
  fs::path path;
};

/// A line of /proc/self/status, in KiB.
int64_t statusLine(const std::string& key) {
  std::ifstream file("/proc/self/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(key)) return std::atoll(line.c_str() + key.size());
  }
  return 0;
}

/// Forgets the peak of the resident memory, so that the next one read is of what follows.
int64_t residentFromNow() {
  std::ofstream("/proc/self/clear_refs") << "5";
  return statusLine("VmRSS:");
}

bool copyFile(const fs::path& from, const fs::path& to) {
  const pid_t child = fork();
  if (child == 0) {
    execlp("cp", "cp", from.c_str(), to.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  int status = 0;
  return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}

bool flushFile(const fs::path& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool done = fsync(file) == 0;
  close(file);
  return done;
}

void transfer(benchmark::State& state, const fs::path& parent) {
  const Folder folder(parent);
  Box box(folder.path);
  const int64_t before = residentFromNow();
  for (auto _ : state) {
    if (!box.ready || box.save() != vk::kCardOk) {
      state.SkipWithError("the transfer failed");
      break;
    }
    state.PauseTiming();
    fs::remove(box.savedFile());
    state.ResumeTiming();
  }
  state.counters["peakKiB"] = static_cast<double>(statusLine("VmHWM:") - before);
  state.SetBytesProcessed(state.iterations() * kRecordingBytes);
}

void copy(benchmark::State& state, const fs::path& parent, bool flushed) {
  const Folder folder(parent);
  const fs::path source = folder.path / "source";
  const fs::path target = folder.path / "target";
  {
    Box box(folder.path);
    if (!box.ready || box.save() != vk::kCardOk) {
      state.SkipWithError("no file to copy");
      return;
    }
    fs::rename(box.savedFile(), source);
  }
  for (auto _ : state) {
    if (!copyFile(source, target) || (flushed && !flushFile(target))) {
      state.SkipWithError("cp failed");
      break;
    }
    state.PauseTiming();
    fs::remove(target);
    state.ResumeTiming();
  }
  state.SetBytesProcessed(state.iterations() * kRecordingBytes);
}

void addFolder(const std::string& name, const fs::path& parent) {
  const auto add = [&](const std::string& what, auto run) {
    benchmark::RegisterBenchmark((what + "/" + name).c_str(), run)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
  };
  add("transfer", [parent](benchmark::State& state) { transfer(state, parent); });
  add("cp", [parent](benchmark::State& state) { copy(state, parent, false); });
  add("cp_flushed", [parent](benchmark::State& state) { copy(state, parent, true); });
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  addFolder("tmp", fs::temp_directory_path());
  if (fs::is_directory("/dev/shm")) addFolder("shm", "/dev/shm");
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
