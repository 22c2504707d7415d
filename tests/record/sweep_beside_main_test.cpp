// The reset at the natural end of a replay runs on that replay's thread. Here it runs endlessly, in parallel to each
// activity of the main thread that it may meet. ThreadSanitizer reports unguarded data.
#include <atomic>
#include <thread>

#include "core/input_status_manager.h"
#include "slots/macro_held_input.h"
#include "slots/macro_slot_manager.h"
#include "tests/record/replay_threads.h"

namespace taviinputmanager {
namespace {

constexpr int kRounds = 300;
constexpr int kDisplay = 1;

class SweepBesideMain : public testing::Test {
 protected:
  SweepBesideMain() {
    Program::Host().primary_display = kDisplay;
    SetInputEventSyncFunc(reinterpret_cast<void*>(&Mirror));
  }

  // Sweeps while the main thread repeats its activities.
  static void Beside(const std::function<void(int round)>& main_thread) {
    std::atomic<bool> is_over{false};
    std::atomic<int> sweeps{0};
    std::thread other([&] {
      while (!is_over) {
        InputStatusManager::GetInstance()->ResetInputStatus(kResetMacro, 0);
        ++sweeps;
        replay_threads::TheEar().Take();
      }
    });
    for (int round = 0; round < kRounds || sweeps < kRounds; ++round) main_thread(round);
    is_over = true;
    other.join();
  }

  static void Mirror(const QString& command, const QVector<QString>& targets) {
    EXPECT_FALSE(targets.isEmpty()) << command.toStdString();
  }
  static void OtherMirror(const QString& command, const QVector<QString>& targets) { Mirror(command, targets); }
  static void SendNowhere(const char*, int) {}

  using Program = replay_threads::Program;
  Program program_;
  ReplayFolder folder_;
};

// Each record begins with its marker, and contains nothing but actions.
TEST_F(SweepBesideMain, Recording) {
  const QString path = folder_.Path("a.json");
  Beside([&](int round) {
    StartRecord("com.example.game", "Game");
    AddVControlCommand("shot", "1", {});
    OnInputRawEventData("KBDPR:30:1\n", kDisplay);
    if (round % 2 == 0) PauseRecord();
    OnInputRawTextData("TEXT:a\n");
    if (round % 2 == 0) ResumeRecord();
    OnInputRawEventData("KBDRL:30:0\n", kDisplay);
    if (round % 20 == 0) StopRecord("com.example.game", path);
  });
  StopRecord("com.example.game", path);
  EXPECT_EQ(RecordStatus::Stopped, GetRecordStatus());

  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonArray actions = QJsonDocument::fromJson(file.readAll()).object()["actions"].toArray();
  ASSERT_FALSE(actions.isEmpty());
  for (int i = 0; i < actions.size(); ++i) {
    const QString data = actions[i].toObject()["data"].toString();
    EXPECT_EQ(i == 0, data.contains("detect_app")) << data.toStdString();
    EXPECT_FALSE(data.isEmpty());
  }
}

TEST_F(SweepBesideMain, CapturingAMacro) {
  StartRecord("com.example.game", "Game");
  Beside([](int) {
    StartRecordMacroInstruction("macro");
    OnInputRawTextData("TEXT:a\n");
    StopRecordMacroInstruction("macro");
  });
}

TEST_F(SweepBesideMain, FingersOfMacros) {
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  Beside([pool](int round) {
    const QPointF point(0.1 * (1 + round % 10), 0.5);
    const int slot = pool->Allocate(point);
    EXPECT_GE(slot, 18);
    EXPECT_LE(slot, 25);
    pool->Contains(point);
    pool->FreeAt(point);
    const int free = pool->FindFree();
    EXPECT_NE(MacroSlotManager::kNoSlot, free);
    pool->Reserve(free);
    for (const int taken : pool->ActiveSlots()) pool->Free(taken);
  });
  EXPECT_TRUE(pool->ActiveSlots().isEmpty());
}

TEST_F(SweepBesideMain, InputThatMacrosHold) {
  Beside([](int round) {
    MacroHeldInput* held = MacroHeldInput::GetInstance();
    held->keys.Add(round);
    held->mouse_buttons.Add(round);
    held->joystick_buttons.insert(QString::number(round));
    if (round % 3 == 0) held->Clear();
  });
  // The last request is applied at the next use.
  InputStatusManager::GetInstance()->ResetInputStatus(kResetMacro, 0);
  EXPECT_TRUE(MacroHeldInput::GetInstance()->keys.IsEmpty());
  EXPECT_TRUE(MacroHeldInput::GetInstance()->mouse_buttons.IsEmpty());
  EXPECT_TRUE(MacroHeldInput::GetInstance()->joystick_buttons.empty());
}

// A keymap without a Staring item is never left in view control by a reset, however the two meet.
TEST_F(SweepBesideMain, TheStatus) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  Beside([status](int round) {
    status->SetStatus(InputStatus::Staring, QString::number(round));
    EXPECT_NE(InputStatus::Normal, GetInputStatus());
    status->ResetForKeymap(nullptr, "com.example.game", {}, true, 0, kDisplay);
    EXPECT_EQ(InputStatus::Normal, GetInputStatus());
  });
}

TEST_F(SweepBesideMain, Displays) {
  Beside([](int round) {
    UpdateDisplayId(kDisplay + round % 2);
    UpdateReplayDisplayId(kDisplay + round % 2);
    OnResetInputStatus(round % 2 == 0, 0);
  });
}

TEST_F(SweepBesideMain, Mirroring) {
  Beside([](int round) {
    StartSync(QString::number(round % 3), {}, {});
    OnInputRawEventData("KBDPR:30:1\n", kDisplay);
    StopSync(QString::number((round + 1) % 3));
    SetInputEventSyncFunc(reinterpret_cast<void*>(round % 2 == 0 ? &Mirror : &OtherMirror));
  });
}

TEST_F(SweepBesideMain, FunctionsAndTablesOfTheHost) {
  InputManagerCallbacks other_table = Program::Host().table;
  InputRecorderCallbacks recorder;
  Beside([&](int round) {
    SetInputEventSendFunc(reinterpret_cast<void*>(&SendNowhere));
    SetInputTextSendFunc(reinterpret_cast<void*>(&SendNowhere));
    Initialize(round % 2 == 0 ? &other_table : &Program::Host().table, 0, 0);
    InitializeRecordCallbacks(round % 2 == 0 ? &recorder : nullptr);
  });
  Initialize(&Program::Host().table, 0, 0);
}

}  // namespace
}  // namespace taviinputmanager
