// The workers of rapid taps without a run: their signals, and what stops them.
#include <memory>

#include "simulators/tap/bunch_tap_continue_worker.h"
#include "simulators/tap/bunch_tap_one_off_worker.h"
#include "tests/support/bunch_worker_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::BunchClickConfigItem;
using tavikeymapmanager::ConfigKey;

class BunchTapWorkers : public BunchWorkerStory {
 protected:
  static BunchClickConfigItem ItemOf(const ConfigKey& key) {
    BunchClickConfigItem item;
    item.rel_x = 0.25;
    item.rel_y = 0.5;
    item.key = key;
    item.bunch_frequency = 20;
    return item;
  }
  void Listen(BunchTapContinueWorker* worker) { ListenToContinue(worker); }
  void Listen(BunchTapOneOffWorker* worker) { ListenToOneOff(worker); }
  // A run of `taps` that has begun, without anything that would end it.
  std::unique_ptr<BunchTapOneOffWorker> StartOneOff(int taps) {
    BunchClickConfigItem item = ItemOf(Key("W"));
    item.bunch_count = taps;
    auto worker = std::make_unique<BunchTapOneOffWorker>(&item);
    Listen(worker.get());
    worker->OneOffProcess();
    return worker;
  }
};

TEST_F(BunchTapWorkers, AContinueRunBeatsUntilItIsStopped) {
  const BunchClickConfigItem item = ItemOf(Key("W"));
  BunchTapContinueWorker worker(&item);
  Listen(&worker);
  worker.Process();
  EXPECT_EQ("press", Said());
  Wait(24);
  EXPECT_EQ("", Said());
  Wait(1);
  EXPECT_EQ("release", Said());
  Wait(50);
  EXPECT_EQ("press, release", Said());
  worker.Stop("keyboard", "", 17);
  EXPECT_EQ("finish", Said());
  Wait(1000);
  EXPECT_EQ("", Said());
}

TEST_F(BunchTapWorkers, AContinueRunFinishesAtEachStop) {
  const BunchClickConfigItem item = ItemOf(Key("W"));
  BunchTapContinueWorker worker(&item);
  Listen(&worker);
  worker.Process();
  worker.Stop("", "force_stop", tavikeymapmanager::kUnsetCode);
  EXPECT_EQ("press, finish", Said());
  worker.Stop("keyboard", "W", 17);
  EXPECT_EQ("finish", Said());
  Wait(1000);
  EXPECT_EQ("", Said());
}

TEST_F(BunchTapWorkers, AStopBeforeTheBeginningFinishesToo) {
  const BunchClickConfigItem item = ItemOf(Key("W"));
  BunchTapContinueWorker worker(&item);
  Listen(&worker);
  worker.Stop("keyboard", "W", 17);
  EXPECT_EQ("finish", Said());
}

TEST_F(BunchTapWorkers, AContinueRunIsStoppedByItsOwnKeyOnly) {
  const struct {
    const char* name;
    ConfigKey own;
    const char* device;
    const char* text;
    int scancode;
    bool stops;
  } rows[] = {
      {"a key by its scan code", {"keyboard", "W", 87, 17}, "keyboard", "other", 17, true},
      {"a key not by its name", {"keyboard", "W", 87, 17}, "keyboard", "W", 18, false},
      {"a key of another device", {"keyboard", "W", 87, 17}, "mouse", "W", 17, false},
      {"a key of no device", {"keyboard", "W", 87, 17}, "", "W", 17, false},
      {"a joystick button by its name", {"joystick", "A", 1, 1}, "joystick", "A", 2, true},
      {"a joystick button not by its code", {"joystick", "A", 1, 1}, "joystick", "B", 1, false},
      {"a joystick button of another device", {"joystick", "A", 1, 1}, "keyboard", "A", 1, false},
      {"a mouse button by its name", {"mouse", "Mouse Left", 1, 1}, "mouse", "Mouse Left", 2, true},
      {"a mouse button not by its value", {"mouse", "Mouse Left", 1, 1}, "mouse", "Mouse Right", 1, false},
      {"a mouse button of another device", {"mouse", "A", 1, 1}, "joystick", "A", 1, false},
      {"a device of no kind never", {"wheel", "A", 1, 1}, "wheel", "A", 1, false},
      {"force", {"keyboard", "W", 87, 17}, "", "force_stop", 0x7FFFFFFF, true},
      {"force on a device of no kind", {"wheel", "A", 1, 1}, "mouse", "force_stop", 5, true},
      {"force exactly", {"keyboard", "W", 87, 17}, "", "Force_Stop", 0x7FFFFFFF, false},
  };
  for (const auto& row : rows) {
    const BunchClickConfigItem item = ItemOf(row.own);
    BunchTapContinueWorker worker(&item);
    Listen(&worker);
    worker.Stop(row.device, row.text, row.scancode);
    EXPECT_EQ(row.stops ? "finish" : "", Said()) << row.name;
  }
}

TEST_F(BunchTapWorkers, AOneOffRunEndsWithTheReleaseOfItsLastTap) {
  const auto worker = StartOneOff(2);
  EXPECT_EQ("press", Said());
  Wait(24);
  EXPECT_EQ("", Said());
  Wait(1);
  EXPECT_EQ("release", Said());
  Wait(49);
  EXPECT_EQ("press", Said());
  Wait(1);
  EXPECT_EQ("release, finish", Said());
}

// Half taps 4 and 5 both belong to two whole taps. In a run, further ticks do not reach the worker.
TEST_F(BunchTapWorkers, TheTimerOfAOneOffRunRunsOn) {
  const auto worker = StartOneOff(2);
  Wait(75);
  EXPECT_EQ("press, release, press, release, finish", Said());
  Wait(25);
  EXPECT_EQ("press, finish", Said());
  Wait(50);
  EXPECT_EQ("release, press", Said());
}

TEST_F(BunchTapWorkers, AOneOffRunOfNoTapsEndsWithItsFirstPress) {
  const auto worker = StartOneOff(0);
  EXPECT_EQ("press, finish", Said());
  Wait(25);
  EXPECT_EQ("release", Said());
}

TEST_F(BunchTapWorkers, AOneOffRunIsStoppedAtOnce) {
  const auto worker = StartOneOff(9);
  Wait(30);
  worker->Stop();
  EXPECT_EQ("press, release, finish", Said());
  worker->Stop();
  EXPECT_EQ("finish", Said());
  Wait(20);
  EXPECT_EQ("press", Said());
}

// ---- Items ----

TEST_F(BunchTapWorkers, ARunKeepsItsItemAsItWasAtItsBeginning) {
  PlayBothWhileTheItemChanges<BunchTapContinueWorker, BunchTapOneOffWorker>(ItemOf(Key("W")));
  EXPECT_EQ("press, finish, press, release, finish", Said());
}

TEST_F(BunchTapWorkers, WithoutAnItemADefaultOneIsTapped) {
  QList<QPointF> pressed;
  BunchTapContinueWorker held(nullptr);
  BunchTapOneOffWorker once(nullptr);
  QObject::connect(&held, &BunchTapContinueWorker::BunchTapPressed, [&pressed](double x, double y) {
    pressed.append({x, y});
  });
  QObject::connect(&once, &BunchTapOneOffWorker::OneOffBunchTapPressed, [&pressed](double x, double y) {
    pressed.append({x, y});
  });
  held.Process();
  Wait(99);  // 10 taps per second
  EXPECT_EQ(QList<QPointF>({{0, 0}}), pressed);
  Wait(1);
  EXPECT_EQ(QList<QPointF>({{0, 0}, {0, 0}}), pressed);
  once.OneOffProcess();
  EXPECT_EQ(3, pressed.size());
}

}  // namespace
}  // namespace taviinputmanager
