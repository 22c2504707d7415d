// Rapid taps, curves, slides and pinches on real threads in real time: order and counts, and that no line comes too
// early.
#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include <QDateTime>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QWheelEvent>

#include "host/simulation/simulated_host.h"
#include "keymap/tavikeymapmanager.h"
#include "simulators/curve/curve_event_simulator.h"
#include "simulators/gamepad/vjoystick_bunch_button_event_simulator.h"
#include "simulators/tap/bunch_tap_event_simulator.h"
#include "simulators/wheel/wheel_event_simulator.h"
#include "simulators/wheel/zoom_event_simulator.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/keymap_source.h"
#include "tests/support/run_until.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::BunchClickConfigItem;
using tavikeymapmanager::CurveConfigItem;
using tavikeymapmanager::KeymapConfig;
using tavikeymapmanager::KeymapSettings;
using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;
using tavikeymapmanager::WheelConfigItem;
using tavikeymapmanager::WheelSettings;
using tavikeymapmanager::ZoomConfigItem;

int argument_count = 1;
char program_name[] = "runs_on_real_threads_test";
char* arguments[] = {program_name, nullptr};

constexpr int kQuietMs = 60;  // longer than the beat of any run here

class RealRuns : public testing::Test {
 protected:
  RealRuns() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(argument_count, arguments);
    Host()->Start([] { return QDateTime::currentMSecsSinceEpoch(); });
  }

  static tavi::SimulatedHost* Host() { return tavi::SimulatedHost::GetInstance(); }

  template <typename Item>
  Item* Add(int scancode, double x) {
    auto* item = new Item;
    item->rel_x = x;
    item->rel_y = 0.5;
    item->key.device = "keyboard";
    item->key.scancode = scancode;
    if (!config_) {
      config_ = new KeymapConfig;
      config_->settings = new KeymapSettings;
      config_->wheel_settings = new WheelSettings;
    }
    config_->items.append(item);
    return item;
  }
  BunchClickConfigItem* AddContinue(int scancode, double x, int frequency) {
    auto* item = Add<BunchClickConfigItem>(scancode, x);
    item->bunch_mode = "Continue";
    item->bunch_frequency = frequency;
    return item;
  }
  BunchClickConfigItem* AddOneOff(int scancode, double x, int count) {
    auto* item = Add<BunchClickConfigItem>(scancode, x);
    item->bunch_mode = "One_Off";
    item->bunch_count = count;
    return item;
  }
  // Without items if none was added since the last.
  void Load() {
    test::SetNextKeymap(std::exchange(config_, nullptr));
    OnLoadKeymapConfigAndInfo("test.yaml", "com.example.game", QString(), 1);
    Host()->StartTimeline();
    lines_.clear();
    times_.clear();
  }

  // Lets time pass until there are enough lines.
  bool RunUntil(const std::function<bool()>& condition) {
    return RunEventsUntil([&] {
      Collect();
      return condition();
    });
  }
  bool RunUntilLines(int count) {
    return RunUntil([this, count] { return lines_.size() >= count; });
  }
  // Lets time pass until no line has come for a while; false if they never stop.
  bool RunUntilQuiet() { return RunUntilQuiet(lines_); }
  // The same for anything that increases.
  template <typename List>
  bool RunUntilQuiet(const List& list) {
    int count = -1;
    QDeadlineTimer quiet;
    return RunUntil([&] {
      if (count != list.size()) quiet.setRemainingTime(kQuietMs);
      count = list.size();
      return quiet.hasExpired();
    });
  }

  QStringList lines_;  // without the display
  QList<qint64> times_;

 private:
  void Collect() {
    for (const auto& entry : Host()->TakeTimeline()) {
      if (entry.source == tavi::TimelineEntry::Source::kCallback) continue;
      lines_.append(entry.text);
      times_.append(entry.ms);
    }
  }

  std::unique_ptr<QGuiApplication> application_;  // destruction ends all runs
  KeymapConfig* config_ = nullptr;                // of the next load, which takes it
};

// Press, release, press, ...
void ExpectTaps(const QStringList& lines) {
  for (int i = 0; i < lines.size(); ++i) EXPECT_EQ(i % 2 == 0, lines[i].contains("SLOTPRESS")) << i;
}

TEST_F(RealRuns, AHeldKeyTapsInOrderUntilItIsReleased) {
  auto* item = AddContinue(17, 0.25, 500);
  Load();
  auto* simulator = BunchTapEventSimulator::GetInstance();
  simulator->Press(item, &item->key);
  ASSERT_TRUE(RunUntilLines(50));
  simulator->Release(item, &item->key);
  ASSERT_TRUE(RunUntilQuiet());
  EXPECT_TRUE(lines_.last().contains("SLOTRELEASE"));
  ExpectTaps(lines_.mid(0, lines_.size() - 1));
}

TEST_F(RealRuns, AOneOffRunHasItsCountAndNoBeatComesEarly) {
  auto* item = AddOneOff(17, 0.25, 3);
  Load();
  BunchTapEventSimulator::GetInstance()->Release(item, &item->key);
  // Three taps, and one more release with the end.
  ASSERT_TRUE(RunUntilLines(7));
  ASSERT_TRUE(RunUntilQuiet());
  ASSERT_EQ(7, lines_.size());
  ExpectTaps(lines_.mid(0, 6));
  EXPECT_TRUE(lines_[6].contains("SLOTRELEASE"));
  // Five beats of 25 ms. The first line may be late, and each millisecond is truncated.
  EXPECT_GE(times_[6], 5 * 25 - 5);
}

// A notch blocks the main thread for 50 ms, in which the run taps on; a busy machine may come late to one of them.
TEST_F(RealRuns, ARapidTapTapsOnDuringAWheelNotch) {
  auto* item = AddContinue(tavikeymapmanager::kWheelUpCode, 0.25, 500);
  item->type = "BunchClick";
  item->key.device = "mouse";
  Load();
  const auto turn_taps_on = [this] {
    lines_.clear();
    QWheelEvent event({10, 10}, {10, 10}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    OnQtInputEvent(&event);
    EXPECT_TRUE(RunUntilQuiet());
    EXPECT_TRUE(lines_.last().contains("SLOTRELEASE"));
    ExpectTaps(lines_.mid(0, lines_.size() - 1));
    return lines_.filter("SLOTPRESS").size() > 1;
  };
  bool taps_on = false;
  for (int i = 0; i < 40 && !taps_on; ++i) taps_on = turn_taps_on();
  EXPECT_TRUE(taps_on);
}

TEST_F(RealRuns, RunsStandSideBySide) {
  auto* w = AddContinue(17, 0.25, 500);
  auto* e = AddContinue(18, 0.5, 250);
  Load();
  auto* simulator = BunchTapEventSimulator::GetInstance();
  simulator->Press(w, &w->key);
  simulator->Press(e, &e->key);
  ASSERT_TRUE(RunUntil([this] { return lines_.filter("320:360").size() > 9 && lines_.filter("640:360").size() > 9; }));
  simulator->Release(w, &w->key);
  // Sooner or later only the other one continues.
  EXPECT_TRUE(RunUntil([this] {
    const QStringList last = lines_.mid(lines_.size() - 40);
    return last.filter("640:360").size() > 10 && last.filter("320:360").isEmpty();
  }));
  simulator->Reset(false);
  EXPECT_TRUE(RunUntilQuiet());
}

// It produces no line, so the story listens to the button itself.
TEST_F(RealRuns, ARapidVirtualButtonIsToldInOrderUntilAKeymapLoadEndsIt) {
  auto* item = Add<VirtualJoystickBunchButtonConfigItem>(17, 0);
  item->map_text = "A";
  item->bunch_enabled = true;
  item->bunch_mode = "Continue";
  item->bunch_frequency = 500;
  Load();
  using Simulator = VJoystickBunchButtonEventSimulator;
  Simulator* simulator = Simulator::GetInstance();
  QList<bool> presses;
  QObject::connect(simulator, &Simulator::sigVJoystickButtonPressOrRelease, [&presses](QString& text, bool press) {
    EXPECT_EQ("A", text);
    presses.append(press);
  });
  simulator->Press(item, &item->key);
  ASSERT_TRUE(RunUntil([&presses] { return presses.size() >= 50; }));
  Load();  // the item is deleted
  ASSERT_TRUE(RunUntilQuiet(presses));
  EXPECT_FALSE(presses.last());
  for (int i = 0; i + 1 < presses.size(); ++i) EXPECT_EQ(i % 2 == 0, presses[i]) << i;
  EXPECT_TRUE(lines_.isEmpty());
  QObject::disconnect(simulator, &Simulator::sigVJoystickButtonPressOrRelease, nullptr, nullptr);
}

TEST_F(RealRuns, ACurveIsFollowedInOrder) {
  auto* item = Add<CurveConfigItem>(17, 0.25);
  item->curve_points = "0.125,0;0.25,0;0.5,0";
  Load();
  auto* simulator = CurveEventSimulator::GetInstance();
  simulator->Press(item, &item->key);
  ASSERT_TRUE(RunUntilLines(3));
  ASSERT_TRUE(RunUntilQuiet());
  // (0.25 + 0.125) * 1280 = 480
  EXPECT_EQ((QStringList{"1:SLOTPRESS:5:5:1:1:480:360", "1:SLOTPRESS:5:5:1:1:640:360", "1:SLOTPRESS:5:5:1:1:960:360"}),
            lines_);
  EXPECT_GE(times_[2], 3 * 8 - 3);
  simulator->Release(item, &item->key);
  ASSERT_TRUE(RunUntilLines(4));
  ASSERT_TRUE(RunUntilQuiet());
  EXPECT_EQ((QStringList{"1:SLOTRELEASE:5"}), lines_.mid(3));
}

TEST_F(RealRuns, AReleasedCurveLiftsOnce) {
  auto* item = Add<CurveConfigItem>(17, 0);
  item->curve_straight = true;
  item->curve_end = {10, 0};  // 500 steps
  Load();
  auto* simulator = CurveEventSimulator::GetInstance();
  simulator->Press(item, &item->key);
  ASSERT_TRUE(RunUntilLines(3));
  simulator->Release(item, &item->key);
  ASSERT_TRUE(RunUntil([this] { return lines_.last().contains("SLOTRELEASE"); }));
  ASSERT_TRUE(RunUntilQuiet());
  EXPECT_EQ(1, lines_.filter("SLOTRELEASE").size());
  EXPECT_TRUE(lines_.last().contains("SLOTRELEASE"));
}

TEST_F(RealRuns, AKeymapLoadEndsRunsInFullFlight) {
  for (int round = 0; round < 3; ++round) {
    auto* held = AddContinue(17, 0.25, 500);
    auto* one_off = AddOneOff(18, 0.5, 1000);
    auto* curve = Add<CurveConfigItem>(19, 0);
    curve->curve_straight = true;
    curve->curve_end = {10, 0};
    Load();
    BunchTapEventSimulator::GetInstance()->Press(held, &held->key);
    BunchTapEventSimulator::GetInstance()->Release(one_off, &one_off->key);
    CurveEventSimulator::GetInstance()->Press(curve, &curve->key);
    ASSERT_TRUE(RunUntil([this] { return lines_.filter("SLOTPRESS:5").size() > 2; }));
    Load();  // the items are deleted
    EXPECT_TRUE(RunUntilQuiet());
  }
}

TEST_F(RealRuns, TheApplicationMayGoWithRunsUnderWay) {
  auto* held = AddContinue(17, 0.25, 500);
  auto* curve = Add<CurveConfigItem>(19, 0);
  curve->curve_straight = true;
  curve->curve_end = {10, 0};
  Load();
  BunchTapEventSimulator::GetInstance()->Press(held, &held->key);
  CurveEventSimulator::GetInstance()->Press(curve, &curve->key);
  EXPECT_TRUE(RunUntilLines(10));
}

// 16 / 8 + 1 ticks, of 0.001 of 1280 pixels each.
TEST_F(RealRuns, AWheelKeySlidesInOrder) {
  auto* item = Add<WheelConfigItem>(17, 0.5);
  item->speed = 10;
  item->axis = "horizontal";
  item->duration_ms = 16;
  Load();
  WheelEventSimulator::GetInstance()->Press(item, &item->key);
  WheelEventSimulator::GetInstance()->Release(item, &item->key);
  ASSERT_TRUE(RunUntilLines(4));
  EXPECT_EQ((QStringList{"1:SLOTPRESS:11:11:1:1:640:360", "1:SLOTPRESS:11:11:1:1:641:360",
                         "1:SLOTPRESS:11:11:1:1:643:360", "1:SLOTRELEASE:11"}),
            lines_);
  EXPECT_GE(times_[2], 3 * 8 - 3);
}

// 12 / 12 + 1 ticks.
TEST_F(RealRuns, AZoomKeyPinchesInOrder) {
  auto* item = Add<ZoomConfigItem>(17, 0.5);
  item->speed = 100;
  item->axis = "horizontal";
  item->duration_ms = 12;
  item->start_distance = 0.25;
  Load();
  ZoomEventSimulator::GetInstance()->Press(item, &item->key);
  ZoomEventSimulator::GetInstance()->Release(item, &item->key);
  ASSERT_TRUE(RunUntilLines(3));
  // 0.01 of 1280 is 12.8: 972.8 and 307.2
  EXPECT_EQ((QStringList{"1:SLOTMULTIPRESS:18:18:960:360:19:19:320:360", "1:SLOTMULTIPRESS:18:18:973:360:19:19:307:360",
                         "1:SLOTMULTIRELEASE:19:18"}),
            lines_);
}

TEST_F(RealRuns, AKeymapLoadEndsSlidesAndPinches) {
  auto* wheel = Add<WheelConfigItem>(17, 0.5);
  wheel->speed = 10;
  wheel->duration_ms = 4000;
  auto* zoom = Add<ZoomConfigItem>(18, 0.5);
  zoom->speed = 1;
  zoom->duration_ms = 4000;
  Load();
  WheelEventSimulator::GetInstance()->Press(wheel, &wheel->key);
  ZoomEventSimulator::GetInstance()->Press(zoom, &zoom->key);
  ZoomEventSimulator::GetInstance()->Release(zoom, &zoom->key);
  ASSERT_TRUE(RunUntilLines(10));
  Load();
  ASSERT_TRUE(RunUntil([this] { return !lines_.filter("SLOTMULTIRELEASE").isEmpty(); }));
  ASSERT_TRUE(RunUntilQuiet());
  EXPECT_TRUE(lines_.last().contains("RELEASE"));
}

}  // namespace
}  // namespace taviinputmanager
