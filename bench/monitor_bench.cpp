// SPDX-License-Identifier: MIT
// All 56 live monitors side by side in a shown window, read by the real cycle from eight simulated
// boxes without latency. "unpaced" reads as fast as it can, "paced" 200 times a second, "hour"
// an hour of virtual time. Counters: monitor windows; passes a second; frames a second that one
// window paints; "core", the processor time of this process as a share of one core; "residentKiB"
// at the end and by how much it grew since the first virtual minute. Runs on a display (see
// scripts/on-display.sh) or with QT_QPA_PLATFORM=offscreen.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QApplication>
#include <QEvent>
#include <QMdiArea>
#include <QWindow>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "desktop/clsPictureBox.h"
#include "instrument/simulator/library.h"
#include "link/mdlConnection.h"
#include "monitors/frmMonitor.h"
#include "monitors/frmMonitorForms.h"
#include "monitors/mdlMonitorCycle.h"
#include "recorder/mdlBoxTable.h"
#include "shell/mdlConfig.h"
#include "tests/instrument/simulator/bench.h"
#include "tests/support/window_desktop.h"

namespace {

using Steady = std::chrono::steady_clock;
using std::chrono::duration;
using std::chrono::duration_cast;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr int kBoxesOnBus = 8;
constexpr int32_t kFirstSerial = 4810001;
constexpr int kAreaWidth = 1900;
constexpr int kAreaHeight = 1000;
constexpr int kColumns = 8;
constexpr int kLines = 7;
constexpr milliseconds kPass{5};
/// A virtual hour has this time between two passes, so that it takes minutes.
constexpr milliseconds kHourPass{100};
constexpr double kMeasuredSeconds = 5;
/// Until every window has done its first layout.
constexpr double kSettlingSeconds = 1.5;

std::string eightBoxes() {
  std::string scenario;
  for (int i = 0; i < kBoxesOnBus; ++i) {
    scenario += "[box " + std::to_string(kFirstSerial + i) + "]\nmodel = VK-480Q\n";
    if (i == 0) scenario += "role = master\n";
    scenario += "signal1 = sine " + std::to_string(300 + 200 * i) +
                " 1000\n"
                "signal2 = noise 800\n"
                "signal3 = ramp 1000 2000\n"
                "signal4 = sine 300 500 20\n";
  }
  return scenario;
}

/// Counts what one picture paints.
class PaintCounter : public QObject {
 public:
  int64_t paints = 0;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return QObject::eventFilter(watched, event);
  }
};

/// The bus, the window and every kind of monitor that there is.
class Scene {
 public:
  Scene() : bench_("") {
    vk::setDefaults();
    vksim::attachBus(&bench_.bus);
    bench_.load(eightBoxes());
    vk::connectBoxes(false, {});
    area_.resize(kAreaWidth, kAreaHeight);
    expose();
    vk::gMonitorHandlers.load = [this](vk::MonitorKind kind) {
      if (auto* form = vk::monitorForm(kind).window()) form->enter(area_);
    };
    for (const auto kind : vk::kMonitorKinds) {
      for (std::size_t i = 0; i < vk::monitorCount(kind); ++i) open(kind, i);
    }
    runFor(kSettlingSeconds, milliseconds{0});
  }
  ~Scene() {
    vk::unloadMonitors();
    vk::gMonitorHandlers = {};
    desk_.doEvents();
    vksim::attachBus(nullptr);
    vk::setDefaults();
  }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  /// Passes as fast as they come, or at most one in each `pace`; returns their number.
  int64_t runFor(double seconds, milliseconds pace) {
    const auto start = Steady::now();
    const auto end = start + duration<double>(seconds);
    auto next = start;
    auto last = start;
    int64_t passes = 0;
    for (auto now = start; now < end; now = Steady::now(), ++passes) {
      bench_.clock.wait(duration_cast<microseconds>(now - last).count());
      last = now;
      if (!onePass()) return 0;
      next += pace;
      std::this_thread::sleep_until(next);
    }
    return passes;
  }

  /// Passes in virtual time, on the boxes' clock and on the program's.
  int64_t skipThrough(std::chrono::minutes length, milliseconds pace) {
    const int64_t passes = duration_cast<milliseconds>(length) / pace;
    for (int64_t i = 0; i < passes; ++i) {
      bench_.clock.wait(duration_cast<microseconds>(pace).count());
      desk_.skipped += pace.count();
      if (!onePass()) return 0;
    }
    return passes;
  }

  int windows() const { return windows_; }
  int64_t paints() const { return counter_.paints; }

 private:
  bool onePass() {
    const bool asked = vk::monitorCycle();
    desk_.doEvents();
    return asked;
  }

  void open(vk::MonitorKind kind, std::size_t index) {
    const auto fields = vk::monitorFields(kind, index);
    constexpr int kTwips = 15;
    fields.width = kAreaWidth / kColumns * kTwips;
    fields.height = kAreaHeight / kLines * kTwips;
    fields.left = windows_ % kColumns * fields.width;
    fields.top = windows_ / kColumns * fields.height;
    for (std::size_t i = 0; i < fields.serial.size(); ++i) {
      const int turn = static_cast<int>(index + i);
      fields.serial[i] = kFirstSerial + turn % kBoxesOnBus;
      fields.channel[i] = (turn + turn / kBoxesOnBus) % vk::kChannels + 1;
    }
    fields.on = true;
    vk::openMonitor(kind, index);
    auto* form = dynamic_cast<vk::frmMonitor*>(vk::monitorWindow(kind, index));
    fields.on = form != nullptr;
    if (form == nullptr) return;
    if (windows_ == 0) watch(*form);
    ++windows_;
  }

  /// A window manager that starts at the same moment may swallow the first showing.
  void expose() {
    constexpr int kTries = 200;
    constexpr int kTriesToShowing = 40;
    for (int i = 0; i < kTries; ++i) {
      if (area_.windowHandle() != nullptr && area_.windowHandle()->isExposed()) return;
      if (i % kTriesToShowing == 0) {
        area_.hide();
        area_.show();
      }
      desk_.waitEvents(static_cast<int>(kPass.count()));
    }
  }

  /// Hidden pictures lie above the form.
  void watch(vk::frmMonitor& form) {
    for (auto* picture : form.findChildren<vk::clsPictureBox*>()) {
      if (picture->y() < 0) continue;
      picture->installEventFilter(&counter_);
      return;
    }
  }

  vktest::WindowDesktop desk_;
  vksim::Bench bench_;
  PaintCounter counter_;
  QMdiArea area_;
  int windows_ = 0;
};

double processorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  constexpr double kMicro = 1e-6;
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         kMicro * static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
}

double residentKiB() {
  std::ifstream file("/proc/self/status");
  const std::string key = "VmRSS:";
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(key)) return std::atof(line.c_str() + key.size());
  }
  return 0;
}

void inRealTime(benchmark::State& state, milliseconds pace) {
  Scene scene;
  for (auto _ : state) {
    const int64_t paintsBefore = scene.paints();
    const double usedBefore = processorSeconds();
    const auto start = Steady::now();
    const int64_t passes = scene.runFor(kMeasuredSeconds, pace);
    const double seconds = duration<double>(Steady::now() - start).count();
    const auto frames = static_cast<double>(scene.paints() - paintsBefore);
    if (passes == 0) state.SkipWithError("no box answered");
    if (frames == 0) state.SkipWithError("nothing was painted");
    state.counters["passes/s"] = static_cast<double>(passes) / seconds;
    state.counters["frames/s"] = frames / seconds;
    state.counters["core"] = (processorSeconds() - usedBefore) / seconds;
  }
  state.counters["windows"] = scene.windows();
}

void virtualHour(benchmark::State& state) {
  Scene scene;
  for (auto _ : state) {
    if (scene.skipThrough(std::chrono::minutes{1}, kHourPass) == 0)
      state.SkipWithError("no box answered");
    const double before = residentKiB();
    const int64_t passes = scene.skipThrough(std::chrono::minutes{60}, kHourPass);
    const double after = residentKiB();
    state.counters["passes"] = static_cast<double>(passes);
    state.counters["residentKiB"] = after;
    state.counters["grownKiB"] = after - before;
  }
  state.counters["windows"] = scene.windows();
}

void add(const char* name, void (*run)(benchmark::State&)) {
  benchmark::RegisterBenchmark(name, run)->UseRealTime()->Iterations(1)->Unit(benchmark::kSecond);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  add("unpaced", [](benchmark::State& state) { inRealTime(state, milliseconds{0}); });
  add("paced", [](benchmark::State& state) { inRealTime(state, kPass); });
  add("hour", virtualHour);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
