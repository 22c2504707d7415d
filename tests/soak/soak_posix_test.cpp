// Random input for a long time: nothing may crash, hang, or stay pressed in the guest.
#include <malloc.h>

#include <QFile>

#include "host/simulation/script_player.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"
#include "test_folders.h"
#include "tests/soak/record_soak.h"
#include "tests/support/allocation_count.h"
#include "tests/support/from_environment.h"
#include "tests/support/keymap_source.h"
#include "tests/support/model_guest.h"
#include "tests/support/random_input.h"

namespace taviinputmanager {
namespace {

// TAVI_SOAK_SEED and TAVI_SOAK_EVENTS choose another run.
class Soak : public RecordSoak {
 protected:
  static constexpr int kUsualSeed = 1;
  static constexpr int kUsualEvents = 200000;
  static constexpr int kDisplays = 3;
  static constexpr int kQuietMs = 2000;
  static constexpr int kRecordedDisplay = 1;
  static constexpr int kRecords = 4;
  static constexpr qint64 kLargestPart = 200000;
  // A run of this length or longer also checks memory.
  static constexpr int kLongRun = 1000000;
  // The heap's caches may differ between two quiet moments with the same keymaps. Less than the smallest block, 32
  // bytes, lost at every four-hundredth event of the shortest of such runs.
  static constexpr qint64 kMemoryTolerance = 64 * 1024;

  Soak() : seed_(FromEnvironment("TAVI_SOAK_SEED", kUsualSeed)), random_(seed_) {
    LoadSomeKeymap();
    LoadSomeJoystickKeymap();
  }

  int Below(int limit) { return random_.Below(limit); }
  bool OneIn(int n) { return random_.OneIn(n); }

  void LoadSomeKeymap() {
    const QString& path = random_.Keymaps()[Below(random_.Keymaps().size())];
    display_ = 1 + Below(kDisplays);
    LoadKeymap(path);
  }
  void LoadKeymap(const QString& path) {
    auto result = tavikeymapmanager::ReadKeymapFile(path);
    ASSERT_FALSE(result.HasErrors());
    test::SetNextKeymap(result.config.release());
    OnLoadKeymapConfigAndInfo("soak.yaml", "com.example.game", "", display_);
  }

  void LoadSomeJoystickKeymap() {
    LoadJoystickKeymap(random_.JoystickKeymaps()[Below(random_.JoystickKeymaps().size())]);
  }
  void LoadJoystickKeymap(const QString& path) {
    auto result = tavikeymapmanager::ReadKeymapFile(path);
    ASSERT_FALSE(result.HasErrors());
    test::SetNextJoystickKeymap(result.config.release());
    OnLoadJoystickConfigAndInfo("soak.yaml", 0);
  }

  // Occasional actions of a host, in the middle of every gesture.
  void DoSomethingRare() {
    switch (Below(9)) {
      case 0: return LoadSomeKeymap();
      case 1: return OnResetInputStatus(OneIn(2), 0);
      case 2: return UpdateDisplayId(display_ = 1 + Below(kDisplays));
      case 3: return UpdateDisplayForceTransparent(1 + Below(kDisplays), OneIn(2));
      case 4: Host().text_input = OneIn(3); return;
      case 5: Host().rotation = 90 * Below(4); return;
      case 6: return LoadSomeJoystickKeymap();
      case 7: Host().joystick_type = Below(6); return;
      default:
        doBackAction(display_);
        return Wait(8);  // a second click within that time leaves the first one's press on its display
    }
  }

  // Recordings of display 1, and replays to it. A file is used by one replay at a time, and merged or recorded only
  // while it is used by none.
  void RecordOrReplay() {
    Host().primary_display = kRecordedDisplay;
    UpdateReplayDisplayId(kRecordedDisplay);
    const int id = Below(kRecords);
    const QString file = RecordPath(id);
    switch (Below(10)) {
      case 0: return StartRecord("com.example.game", "Soak");
      case 1: return OneIn(2) ? PauseRecord() : ResumeRecord();
      case 2: return in_replay_.contains(id) ? void() : StopRecord("com.example.game", file);
      case 3: return in_replay_.contains(id) ? void() : MergeSomeRecords(file);
      case 4:
        if (in_replay_.contains(id) || !QFile::exists(file)) return;
        in_replay_.insert(id);
        return StartReplay(0, id, QString(), file, {0.25 * (1 + Below(12)), OneIn(2)});
      case 5: return PauseReplay(id, file);
      case 6: return ResumeReplay(id, file);
      case 7: return RestartReplay(id, file, {});
      case 8: StopReplay(id, file, OneIn(2)); return Wait(1), void(in_replay_.remove(id));
      default:
        if (!OneIn(4)) return AddVControlCommand("shot", OneIn(2) ? "1" : "", "");
        StopAllReplay();
        return Wait(1), in_replay_.clear();
    }
  }
  // Does not merge merged records endlessly: those that grow too large are excluded.
  void MergeSomeRecords(const QString& target) {
    QVector<MergeParam> parts;
    for (int i = 0; i < 3; ++i) {
      const QString file = RecordPath(Below(kRecords));
      if (QFile(file).size() > kLargestPart) continue;
      parts.append({file, Below(3), Below(50), 0.5 + Below(3), Below(50)});
    }
    MergeRecord(target, parts);
  }
  // Nothing is replayed or recorded, no timer of a gesture runs, and the keymaps are always the same.
  void ComeToRest() {
    LoadKeymap(random_.Keymaps().first());
    LoadJoystickKeymap(random_.JoystickKeymaps().first());
    StopRecord("com.example.game", RecordPath(kRecords));
    EndReplays(kRecords);
    in_replay_.clear();
    Wait(kQuietMs);
    Listen();
  }

  // Allocated bytes. A sanitizer's heap does not report them: 0.
  static qint64 MemoryInUse() {
    if (!test::CountsAllocations()) return 0;
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<qint64>(heap.uordblks + heap.hblkhd);
  }

  void Listen() {
    for (const auto& entry : Host().TakeTimeline()) {
      if (entry.source == tavi::TimelineEntry::Source::kLine) guest_.Read(entry.text);
      if (entry.source == tavi::TimelineEntry::Source::kText) guest_.ReadText(entry.text);
    }
  }

  // The library does not know which buttons are down: a host that changes displays or keymaps in between releases its
  // gamepads itself, which is done at the end here. The second kind of gamepad has every button.
  void LetGoOfGamepads() {
    Host().joystick_type = 2;
    for (const int simulate_mode : {0, 1}) {
      Settings().joystick_transparent = true;
      Wheel().simulate_mode = simulate_mode;
      LoadJoystick();  // has no items, passes everything through
      for (int display = 0; display <= kDisplays; ++display) {
        UpdateDisplayId(display);
        for (int button = 0; button <= 13; ++button) Play(QStringLiteral("joy up %1").arg(button));
        Play("joy up ↑; joy up ←; joy axis 0 0,0; joy axis 1 0,0");
      }
      Listen();
    }
  }

  int seed_;
  RandomInput random_;
  int display_ = 1;
  ModelGuest guest_;
  QSet<int> in_replay_;  // numbers of records
};

TEST_F(Soak, NothingStaysDown) {
  const int events = FromEnvironment("TAVI_SOAK_EVENTS", kUsualEvents);
  std::cout << "TAVI_SOAK_SEED=" << seed_ << " TAVI_SOAK_EVENTS=" << events << std::endl;
  tavi::ScriptPlayer player(&Time(), &Host());
  const bool is_long = events >= kLongRun;
  qint64 early_memory = 0;
  for (int i = 0; i < events; ++i) {
    if (is_long && i == events / 10) {
      ComeToRest();
      early_memory = MemoryInUse();
    }
    OneIn(200) ? DoSomethingRare() : player.Play(random_.SomeCommand());
    if (OneIn(100)) RecordOrReplay();
    if (i % 1000 == 0) Listen();
  }
  EndReplays(kRecords);
  UpdateDisplayId(display_);
  Wait(kQuietMs);  // running timers may still send
  UpdateDisplayId(display_);
  Listen();
  EXPECT_EQ("", guest_.WhatIsDown().toStdString());
  if (is_long) {
    ComeToRest();
    const qint64 growth = MemoryInUse() - early_memory;
    std::cout << "in use after a tenth: " << early_memory << " bytes; growth since: " << growth << std::endl;
    EXPECT_LE(growth, kMemoryTolerance);
  }
  LetGoOfGamepads();
  EXPECT_EQ("", guest_.WhatGamepadsHold().toStdString());
  EXPECT_EQ("", guest_.Unreadable().join('\n').toStdString());
}

}  // namespace
}  // namespace taviinputmanager
