// The workers of rapid virtual buttons without a run: their signals, and what stops them.
#include "simulators/gamepad/bunch_tap_continue_vjoy_worker.h"
#include "simulators/gamepad/bunch_tap_one_off_vjoy_worker.h"
#include "tests/support/bunch_worker_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;

class BunchTapVjoyWorkers : public BunchWorkerStory {
 protected:
  static VirtualJoystickBunchButtonConfigItem ItemOf(const ConfigKey& key) {
    VirtualJoystickBunchButtonConfigItem item;
    item.map_text = "LB";
    item.key = key;
    item.bunch_frequency = 20;
    return item;
  }
  void Listen(BunchTapContinueVjoyWorker* worker) { ListenToContinue(worker); }
  void Listen(BunchTapOneOffVjoyWorker* worker) { ListenToOneOff(worker); }
};

TEST_F(BunchTapVjoyWorkers, AContinueRunBeatsAtItsFrequencyUntilItIsStopped) {
  const VirtualJoystickBunchButtonConfigItem item = ItemOf(Key("W"));
  BunchTapContinueVjoyWorker worker(&item);
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
  worker.Stop("keyboard", "", 17);
  EXPECT_EQ("finish, finish", Said());
  Wait(1000);
  EXPECT_EQ("", Said());
}

TEST_F(BunchTapVjoyWorkers, AContinueRunIsStoppedByItsDeviceAndCodeOnly) {
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
      {"a mouse button by its value", {"mouse", "Mouse Left", 1, 1}, "mouse", "other", 1, true},
      {"a mouse button not by its name", {"mouse", "Mouse Left", 1, 1}, "mouse", "Mouse Left", 2, false},
      {"a joystick button by its code", {"joystick", "A", 1, 1}, "joystick", "B", 1, true},
      {"a joystick button not by its name", {"joystick", "A", 1, 1}, "joystick", "A", 2, false},
      {"a device of any kind", {"wheel", "A", 1, 1}, "wheel", "B", 1, true},
      {"force", {"keyboard", "W", 87, 17}, "", "force_stop", 0x7FFFFFFF, true},
      {"force exactly", {"keyboard", "W", 87, 17}, "", "Force_Stop", 0x7FFFFFFF, false},
  };
  for (const auto& row : rows) {
    const VirtualJoystickBunchButtonConfigItem item = ItemOf(row.own);
    BunchTapContinueVjoyWorker worker(&item);
    Listen(&worker);
    worker.Stop(row.device, row.text, row.scancode);
    EXPECT_EQ(row.stops ? "finish" : "", Said()) << row.name;
  }
}

TEST_F(BunchTapVjoyWorkers, AFrequencyWithoutAPeriodHoldsTheButton) {
  auto item = ItemOf(Key("W"));
  item.bunch_frequency = 0;
  BunchTapContinueVjoyWorker worker(&item);
  Listen(&worker);
  worker.Process();
  Wait(5000);
  EXPECT_EQ("press", Said());
}

TEST_F(BunchTapVjoyWorkers, AOneOffRunBeatsEach25MillisecondsAndEndsWithItsLastRelease) {
  auto item = ItemOf(Key("W"));
  item.bunch_frequency = 1;  // not read
  item.bunch_count = 2;
  BunchTapOneOffVjoyWorker worker(&item);
  Listen(&worker);
  worker.OneOffProcess();
  EXPECT_EQ("press", Said());
  Wait(25);
  EXPECT_EQ("release", Said());
  Wait(49);
  EXPECT_EQ("press", Said());
  Wait(1);
  EXPECT_EQ("release, finish", Said());
  worker.Stop();
  EXPECT_EQ("finish", Said());
  Wait(25);
  EXPECT_EQ("press, finish", Said());  // half tap 5 is still of two whole ones
}

TEST_F(BunchTapVjoyWorkers, AOneOffRunOfNoPressesEndsWithItsFirst) {
  auto item = ItemOf(Key("W"));
  item.bunch_count = 0;
  BunchTapOneOffVjoyWorker worker(&item);
  Listen(&worker);
  worker.OneOffProcess();
  EXPECT_EQ("press, finish", Said());
}

TEST_F(BunchTapVjoyWorkers, AOneOffRunIsStoppedAtOnce) {
  auto item = ItemOf(Key("W"));
  item.bunch_count = 9;
  BunchTapOneOffVjoyWorker worker(&item);
  Listen(&worker);
  worker.OneOffProcess();
  Wait(30);
  worker.Stop();
  EXPECT_EQ("press, release, finish", Said());
}

// ---- Items ----

TEST_F(BunchTapVjoyWorkers, ARunKeepsItsItemAsItWasAtItsBeginning) {
  PlayBothWhileTheItemChanges<BunchTapContinueVjoyWorker, BunchTapOneOffVjoyWorker>(ItemOf(Key("W")));
  EXPECT_EQ("press, finish, press, release, finish", Said());
}

TEST_F(BunchTapVjoyWorkers, WithoutAnItemADefaultOneIsTapped) {
  QStringList pressed;
  BunchTapContinueVjoyWorker held(nullptr);
  BunchTapOneOffVjoyWorker once(nullptr);
  const auto on_press = [&pressed](const QString& text) { pressed.append("press " + text); };
  QObject::connect(&held, &BunchTapContinueVjoyWorker::BunchTapPressed, on_press);
  QObject::connect(&once, &BunchTapOneOffVjoyWorker::OneOffBunchTapPressed, on_press);
  held.Process();
  once.OneOffProcess();
  EXPECT_EQ(QStringList({"press ", "press "}), pressed);
}

}  // namespace
}  // namespace taviinputmanager
