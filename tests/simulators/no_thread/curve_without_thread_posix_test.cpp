// A system that has no threads left for a while: a function that overrides the C library's refuses them.
#include <atomic>
#include <cerrno>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include <QDateTime>
#include <QGuiApplication>

#include "host/simulation/simulated_host.h"
#include "keymap/tavikeymapmanager.h"
#include "simulators/curve/curve_event_simulator.h"
#include "tests/support/run_until.h"

namespace {

std::atomic<bool> refuses_threads{false};

}  // namespace

extern "C" __attribute__((visibility("default"))) int pthread_create(pthread_t* thread,
                                                                     const pthread_attr_t* attributes,
                                                                     void* (*start)(void*), void* argument) noexcept {
  if (refuses_threads) return EAGAIN;
  static const auto create = reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
  return create(thread, attributes, start, argument);
}

namespace taviinputmanager {
namespace {

int argument_count = 1;
char program_name[] = "curve_without_thread_test";
char* arguments[] = {program_name, nullptr};

// A notch plays a curve only if no run of one exists.
TEST(CurveWithoutThread, IsOverAndLeavesTheWayToTheNext) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argument_count, arguments);
  tavi::SimulatedHost* host = tavi::SimulatedHost::GetInstance();
  host->Start([] { return QDateTime::currentMSecsSinceEpoch(); });
  tavikeymapmanager::CurveConfigItem item;
  item.rel_x = 0.25;
  item.rel_y = 0.5;
  item.curve_points = "0.125,0;0.25,0";
  CurveEventSimulator* simulator = CurveEventSimulator::GetInstance();

  refuses_threads = true;
  simulator->Wheel(&item, &item.key);
  refuses_threads = false;
  QCoreApplication::processEvents();
  host->TakeTimeline();
  simulator->Wheel(&item, &item.key);
  QStringList lines;
  EXPECT_TRUE(RunEventsUntil([&] {
    for (const auto& entry : host->TakeTimeline()) lines.append(entry.text);
    return lines.size() >= 3;
  }));
  // (0.25 + 0.125) * 1280 = 480; Initialize loaded display 0. A busy event loop may get the reported end more than
  // once.
  EXPECT_EQ((QStringList{"0:SLOTPRESS:5:5:1:1:480:360", "0:SLOTPRESS:5:5:1:1:640:360", "0:SLOTRELEASE:5"}),
            lines.mid(0, 3));
}

}  // namespace
}  // namespace taviinputmanager
