// A host that calls the library from inside every function that the library calls: nothing may crash or stay pressed.
#include <QFile>
#include <QSet>

#include "host/simulation/script_player.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/soak/record_soak.h"
#include "tests/support/from_environment.h"
#include "tests/support/interruptions.h"
#include "tests/support/keymap_source.h"
#include "tests/support/model_guest.h"
#include "tests/support/random_input.h"

namespace taviinputmanager {
namespace {

using Kind = tavi::ScriptCommand::Kind;
using tavi::ScriptCommand;

class ReenteringHost;
ReenteringHost* host = nullptr;  // functions of the host have no place for it

// TAVI_SOAK_SEED and TAVI_SOAK_EVENTS choose another run; the events are those from outside.
class ReenteringHost : public RecordSoak {
 protected:
  static constexpr int kUsualSeed = 1;
  static constexpr int kUsualEvents = 15000;
  static constexpr int kEventsAKeymap = 500;
  static constexpr int kDisplay = 1;  // primary: mirrored and recorded
  static constexpr int kRecords = 3;
  static constexpr int kDeepest = 4;       // nested calls
  static constexpr int kLineInterval = 3;  // one in this many functions calls back, fewer of the nested ones
  static constexpr int kQuietMs = 2000;

  ReenteringHost() : seed_(FromEnvironment("TAVI_SOAK_SEED", kUsualSeed)), random_(seed_), player_(&Time(), &Host()) {
    host = this;
    Host().primary_display = kDisplay;
    SetInputEventSyncFunc(reinterpret_cast<void*>(+[](const QString& line, const QVector<QString>&) {
      host->mirror_.Read(QStringLiteral("%1:%2").arg(kDisplay).arg(line.chopped(1)));
      host->CallBack();
    }));
    SetInputTextSyncFunc(reinterpret_cast<void*>(+[](const QString&, const QVector<QString>&) { host->CallBack(); }));
    StartSync("mirror", "", "");
    UpdateReplayDisplayId(kDisplay);
    InstallRecordTables();
    Host().interruption = {};
    test::InterruptWith([this](const QString&) { CallBack(); });
    const auto written = Host().interruption;
    Host().interruption = [this, written](const tavi::TimelineEntry& entry) {
      Listen();  // the guest gets a line before the host does anything else
      written(entry);
    };
  }

  void InstallRecordTables() {
    static InputRecorderCallbacks recorder{[] { host->CallBack(); }, [] { host->CallBack(); }, [] { host->CallBack(); },
                                           [](const QString&, int) { host->CallBack(); }};
    static InputReplayerCallbacks replayer;
    replayer.started = replayer.paused = replayer.resumed =
        replayer.stopped = [](int, const QString&) { host->CallBack(); };
    replayer.finished = [](int, const QString&, ReplayParam) { host->CallBack(); };
    replayer.vcontrol = [](const QString&, const QString&, const QString&, int, const QString&) { host->CallBack(); };
    InitializeRecordCallbacks(&recorder);
    InitializeReplayCallbacks(&replayer);
  }

  void LoadKeymaps(const QString& path, const QString& joystick_path) {
    auto keymap = tavikeymapmanager::ReadKeymapFile(path);
    auto joystick = tavikeymapmanager::ReadKeymapFile(joystick_path);
    ASSERT_FALSE(keymap.HasErrors() || joystick.HasErrors());
    test::SetNextKeymap(keymap.config.release());
    OnLoadKeymapConfigAndInfo("soak.yaml", "com.example.game", "", kDisplay);
    test::SetNextJoystickKeymap(joystick.config.release());
    OnLoadJoystickConfigAndInfo("soak.yaml", 0);
  }

  // What the library has called.
  void CallBack() {
    if (is_quiet_ || depth_ >= kDeepest || !random_.OneIn(kLineInterval << (2 * depth_))) return;
    ++depth_;
    ++calls_;
    CallSomething();
    --depth_;
  }

  // Every function that is allowed there, mostly input.
  void CallSomething() {
    switch (random_.Below(12)) {
      case 0: return SendSomething();
      case 1: return AskOrSetSomething();
      case 2: return Record();
      case 3: return Replay();
      default: return FeedSomething();
    }
  }
  // What is down is often released from inside.
  void FeedSomething() {
    ScriptCommand command = random_.SomeCommand();
    if (command.kind == Kind::kWait) command = LastPress();
    if (command.kind == Kind::kWait) return;  // nothing was pressed yet
    player_.Feed(command);
  }
  ScriptCommand LastPress() {
    ScriptCommand command = last_;
    if (command.kind == Kind::kKeyDown) command.kind = Kind::kKeyUp;
    if (command.kind == Kind::kMouseDown) command.kind = Kind::kMouseUp;
    if (command.kind == Kind::kJoyDown) command.kind = Kind::kJoyUp;
    if (command.kind == Kind::kTouchBegin) command.kind = Kind::kTouchEnd;
    return command;
  }
  void SendSomething() {
    switch (random_.Below(4)) {
      case 0: return doBackAction(kDisplay);
      case 1: return OnInputRawEventData("KBDRL:30:0\n", kDisplay);
      case 2: return OnInputRawTextData("TEXT:raw\n");
      default: return UpdateMousePosition(random_.Below(1280), random_.Below(720));
    }
  }
  void AskOrSetSomething() {
    int x = 640;
    int y = 360;
    switch (random_.Below(9)) {
      case 0: return SetHandyStaringSensitivity(random_.Below(3), random_.Below(3));
      case 1: return StartSync("mirror", "", "");
      case 2: return random_.OneIn(2) ? StopSync("other") : PauseSync("other");
      case 3: return StartSync("other", "", "");
      case 4: return UpdateDisplayForceTransparent(2, random_.OneIn(2));
      case 5: return UpdateReplayDisplayId(kDisplay);
      case 6: return ConvertWindowPositionToAndroid(x, y);
      case 7: return static_cast<void>(isInputHoldWhenWindowDeactivate());
      default: return static_cast<void>(GetInputStatus());
    }
  }
  // A file is written only while no replay uses it.
  void Record() {
    const int id = random_.Below(kRecords);
    switch (random_.Below(8)) {
      case 0: return StartRecord("com.example.game", "Host");
      case 1: return random_.OneIn(2) ? PauseRecord() : ResumeRecord();
      case 2: return in_replay_.contains(id) ? void() : StopRecord("com.example.game", RecordPath(id));
      case 3: return AddVControlCommand("shot", random_.OneIn(2) ? "1" : "", "");
      case 4: return StartRecordMacroInstruction("macro");
      case 5: return StopRecordMacroInstruction("macro");
      case 6: return static_cast<void>(getRecordMacroInstruction("macro"));
      default: return static_cast<void>(GetRecordStatus());
    }
  }
  void Replay() {
    const int id = random_.Below(kRecords);
    const QString file = RecordPath(id);
    switch (random_.Below(6)) {
      case 0:
        if (in_replay_.contains(id) || !QFile::exists(file)) return;
        in_replay_.insert(id);
        return StartReplay(0, id, QString(), file, {1.0 + random_.Below(8), random_.OneIn(2)});
      case 1: return PauseReplay(id, file);
      case 2: return ResumeReplay(id, file);
      case 3: return RestartReplay(id, file, {});
      case 4: return StopReplay(id, file, true);
      default: return random_.OneIn(4) ? StopAllReplay() : void();
    }
  }

  void PlayKeymap(int events) {
    for (int i = 0; i < events; ++i) {
      last_ = random_.SomeCommand();
      player_.Play(last_);
      if (random_.OneIn(50)) Record();
      if (random_.OneIn(50)) Replay();
      if (random_.OneIn(200)) OnResetInputStatus(random_.OneIn(2), 0);
      if (random_.OneIn(200)) UpdateDisplayId(kDisplay);
      if (random_.OneIn(100)) Host().text_input = random_.OneIn(3);
      Listen();
      ASSERT_EQ(guest_.WhatIsDown().toStdString(), mirror_.WhatIsDown().toStdString()) << "the same lines, in order";
    }
  }

  // From here on the host makes no calls.
  void LetGoOfEverything() {
    is_quiet_ = true;
    Host().text_input = false;
    EndReplays(kRecords);
    in_replay_.clear();
    for (const auto& key : random_.Keys()) {
      ScriptCommand command;
      command.kind = Kind::kKeyUp;
      command.key = key;
      player_.Play(command);
    }
    Play(
        "mouse up left 640,360; mouse up right 640,360; mouse up middle 640,360; touch end; joy axis 0 0,0; joy axis 1 "
        "0,0");
    UpdateDisplayId(kDisplay);
    Wait(kQuietMs);  // running timers may still send
    UpdateDisplayId(kDisplay);
    Listen();
    is_quiet_ = false;
  }

  void Listen() {
    for (const auto& entry : Host().TakeTimeline()) {
      if (entry.source == tavi::TimelineEntry::Source::kLine) guest_.Read(entry.text);
      if (entry.source == tavi::TimelineEntry::Source::kText) guest_.ReadText(entry.text);
    }
  }

  int seed_;
  RandomInput random_;
  tavi::ScriptPlayer player_;
  ModelGuest guest_;
  ModelGuest mirror_;
  QSet<int> in_replay_;  // numbers of records
  ScriptCommand last_;   // from outside
  int depth_ = 0;
  qint64 calls_ = 0;
  bool is_quiet_ = false;
};

TEST_F(ReenteringHost, LeavesNothingDown) {
  const int events = FromEnvironment("TAVI_SOAK_EVENTS", kUsualEvents);
  std::cout << "TAVI_SOAK_SEED=" << seed_ << " TAVI_SOAK_EVENTS=" << events << std::endl;
  const QStringList& keymaps = random_.Keymaps();
  const QStringList& joystick_keymaps = random_.JoystickKeymaps();
  for (int i = 0; i * kEventsAKeymap < events; ++i) {
    LoadKeymaps(keymaps[i % keymaps.size()], joystick_keymaps[i % joystick_keymaps.size()]);
    PlayKeymap(kEventsAKeymap);
    ASSERT_FALSE(HasFailure());
    LetGoOfEverything();
    ASSERT_EQ("", guest_.WhatIsDown().toStdString()) << keymaps[i % keymaps.size()].toStdString();
    ASSERT_EQ("", mirror_.WhatIsDown().toStdString()) << keymaps[i % keymaps.size()].toStdString();
  }
  EXPECT_EQ("", guest_.Unreadable().join('\n').toStdString());
  EXPECT_EQ("", mirror_.Unreadable().join('\n').toStdString());
  std::cout << "calls from inside: " << calls_ << std::endl;
}

}  // namespace
}  // namespace taviinputmanager
