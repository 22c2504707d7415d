#include "fuzz/session.h"

#include <cstdlib>

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include "fuzz/check.h"
#include "host/guest/guest_line.h"
#include "host/simulation/simulated_host.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::fuzz {

namespace {

constexpr int kQuietMs = 2000;  // more than any run that an input may start
constexpr int kDisplays = 9;

int argument_count = 1;
char program_name[] = "fuzz";
char* arguments[] = {program_name, nullptr};

InputRecorderCallbacks* Recorder() {
  static InputRecorderCallbacks table{[] {}, [] {}, [] {}, [](const QString&, int) {}};
  return &table;
}

InputReplayerCallbacks* Replayer() {
  using Text = const QString&;
  static constexpr auto kIgnore = [](int, Text) {};
  static InputReplayerCallbacks table{
      kIgnore, kIgnore, kIgnore, kIgnore, [](int, Text, ReplayParam) {}, [](Text, Text, Text, int, Text) {}};
  return &table;
}

void Mirror(const QString& command, const QVector<QString>& targets) {
  Check(targets.isEmpty() || !command.isEmpty(), "a mirrored line is not empty");
}

// Replays and raw lines have displays of their own. The numbers of gamepad lines come from the host or an odd keymap.
bool PassesAsGiven(const QString& line) {
  const tavi::AddressedLine addressed = tavi::SplitDisplay(line);
  if (addressed.display >= Session::kReplayDisplay) return true;
  switch (tavi::ParseGuestLine(addressed.line).kind) {
    case tavi::GuestLine::Kind::kLeftStick:
    case tavi::GuestLine::Kind::kRightStick:
    case tavi::GuestLine::Kind::kLeftTrigger:
    case tavi::GuestLine::Kind::kRightTrigger:
    case tavi::GuestLine::Kind::kGamepadButton:
    case tavi::GuestLine::Kind::kHatX:
    case tavi::GuestLine::Kind::kHatY: return true;
    default: return false;
  }
}

QString MakeFolder() {
  const QString memory = QStringLiteral("/dev/shm");
  const QString base = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
  const QString path = base + QStringLiteral("/tavi_fuzz_%1").arg(QCoreApplication::applicationPid());
  QDir().mkpath(path);
  return path;
}

}  // namespace

Session& Session::Get() {
  static Session session;
  return session;
}

Session::Session() : clock_(new tavi::VirtualEventDispatcher) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QCoreApplication::setEventDispatcher(clock_);
  application_ = std::make_unique<QGuiApplication>(argument_count, arguments);
  folder_ = MakeFolder();
  Host().Start([this] { return clock_->NowMs(); });
  Finish();
}

Session::~Session() { QDir(folder_).removeRecursively(); }

tavi::SimulatedHost& Session::Host() { return *tavi::SimulatedHost::GetInstance(); }

void Session::Finish() {
  EndAll();
  RestoreHost();
  std::srand(1);
  clock_->SetPointer({640, 360});
  Host().TakeTimeline();
  guest_ = ModelGuest();
}

void Session::EndAll() {
  StopAllReplay();
  StopRecordMacroInstruction({});
  OnLoadJoystickConfigAndInfo({}, 0);
  OnLoadKeymapConfigAndInfo({}, {}, {}, 1);
  OnResetInputStatus(true, 0);
  clock_->Advance(kQuietMs);
  StopRecord({}, FilePath("unsaved"));
}

void Session::RestoreHost() {
  tavi::SimulatedHost& host = Host();
  host.window = {0, 0, 1280, 720};
  host.display = host.touch = QRect(0, 0, 1280, 720);
  host.rotation = 0;
  host.text_input = false;
  host.escape_back = true;
  host.joystick_type = 1;
  host.primary_display = 1;
  InitializeRecordCallbacks(Recorder());
  InitializeReplayCallbacks(Replayer());
  SetInputEventSyncFunc(reinterpret_cast<void*>(Mirror));
  SetInputTextSyncFunc(reinterpret_cast<void*>(Mirror));
  for (int display = 0; display < kDisplays; ++display) UpdateDisplayForceTransparent(display, false);
  for (const char* target : {"0", "1", "2", "3"}) StopSync(QString(target));
  UpdateReplayDisplayId(kReplayDisplay);
  SetHandyStaringSensitivity(1, 1);
}

void Session::CheckThatNothingStaysDown(int display) {
  UpdateDisplayId(display);
  clock_->Advance(kQuietMs);  // running timers may still send
  UpdateDisplayId(display);
  Listen();
  Check(guest_.WhatIsDown().isEmpty(), "nothing stays down: " + guest_.WhatIsDown());
  Check(guest_.Unreadable().isEmpty(), "lines are well-formed: " + guest_.Unreadable().join('\n'));
}

void Session::Listen() {
  for (const tavi::TimelineEntry& entry : Host().TakeTimeline()) {
    if (entry.source != tavi::TimelineEntry::Source::kLine) continue;
    if (!PassesAsGiven(entry.text)) guest_.Read(entry.text);
  }
}

QString Session::FilePath(const QString& name) const { return folder_ + '/' + name; }

void Session::WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  Check(file.open(QIODevice::WriteOnly), "the folder takes files: " + path);
  file.write(bytes);
}

}  // namespace taviinputmanager::fuzz
