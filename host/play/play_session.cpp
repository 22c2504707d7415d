#include "host/play/play_session.h"

#include <utility>

#include <QCursor>
#include <QFileInfo>

#include "host/gamepad/gamepad_poll.h"
#include "host/session/input_port.h"
#include "host/session/keymap_report.h"
#include "host/session/live_host.h"
#include "host/session/recorder.h"
#include "host/session/replayer.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::InputStatus;
using taviinputmanager::RecordStatus;

namespace {

enum ReservedKey { kPanic, kPause };

QString CountText(int count, const QString& what) {
  if (count == 0) return QStringLiteral("no %1").arg(what);
  if (count == 1) return QStringLiteral("1 %1").arg(what);
  return what == QLatin1String("mouse") ? QStringLiteral("%1 mice").arg(count)
                                        : QStringLiteral("%1 %2s").arg(count).arg(what);
}

QString ViewText() {
  switch (static_cast<InputStatus>(LiveHost::GetInstance()->InputStatus())) {
    case InputStatus::Staring: return QStringLiteral("the mouse turns the view");
    case InputStatus::Observing: return QStringLiteral("the mouse looks around");
    default: return {};
  }
}

QString TypingText() { return LiveHost::GetInstance()->HasTextField() ? QStringLiteral("keys are typed") : QString(); }

QString RecordText() {
  switch (Recorder::GetInstance()->Status()) {
    case RecordStatus::Recording: return QStringLiteral("recording");
    case RecordStatus::Paused: return QStringLiteral("recording paused");
    default: return {};
  }
}

// Why another keymap does not replace the one in use. A file that is saved with errors is loaded all the same: its
// previous state stays in use.
QString RefusalOf(const QString& path, const KeymapSource& in_use) {
  if (path == in_use.Path()) return {};
  const tavikeymapmanager::LoadResult read = tavikeymapmanager::ReadKeymapFile(path);
  return read.HasErrors() ? FormatDiagnostics(read).trimmed() : QString();
}

QString ReplayText() {
  const Replayer::State state = Replayer::GetInstance()->GetState();
  return state == Replayer::State::kPlaying ? QStringLiteral("replaying") : QString();
}

}  // namespace

PlaySession::PlaySession(DeviceSource* source, GuestOutlet* outlet, const PlaySettings& settings)
    : source_(source),
      outlet_(outlet),
      settings_(settings),
      size_(settings.size),
      reserved_(QStringLiteral("tavi play")),
      feeder_(&reserved_),
      pads_([](QEvent* event) { InputPort::GetInstance()->SendJoystick(event); }),
      mapping_(&pads_),
      devices_(source, settings.devices) {
  feeder_.SetSpeed(settings.speed);
  ReserveKeys();
  devices_.SetTaker(
      [this](int device, const InputFrame& frame, bool is_grabbed) { TakeFrame(device, frame, is_grabbed); });
  connect(&devices_, &PlayDevices::Gone, this, &PlaySession::TakeGone);
  connect(&devices_, &PlayDevices::Told, this, &PlaySession::Told);
  connect(&devices_, &PlayDevices::Changed, this, &PlaySession::TellState);
  connect(&pads_, &Gamepads::Changed, this, &PlaySession::TellState);
  connect(&watch_, &KeymapWatch::Changed, this, [this] { LoadKeymap(mapping_.Keymap().Path()); });
  connect(&joystick_watch_, &KeymapWatch::Changed, this,
          [this] { LoadJoystickKeymap(mapping_.JoystickKeymap().Path()); });
  // The keymap stays in use, but view control ends: the player must be able to reach the desktop.
  connect(&watch_, &KeymapWatch::Vanished, this, [this] {
    Q_EMIT Told(QStringLiteral("%1 was deleted; it stays in use as it was last read").arg(mapping_.Keymap().Path()));
    Reset();
  });
}

PlaySession::~PlaySession() { End(); }

void PlaySession::ReserveKeys() {
  reserved_.Reserve(kPanic, settings_.panic_key, "--panic-key", [this] { Panic(); });
  reserved_.Reserve(kPause, settings_.pause_key, "--pause-key", [this] { SetPaused(!mapping_.IsPaused()); });
}

QString PlaySession::Start() {
  const QString problem = outlet_->Open(size_);
  if (!problem.isEmpty()) return problem;
  StartLibrary();
  mapping_.SetPaused(settings_.is_paused);
  pads_.SetListening(!settings_.is_paused);
  devices_.Start();
  devices_.SetGrabWanted(!settings_.is_paused);
  if (devices_.Count() == 0) {
    Q_EMIT Told(QStringLiteral("no keyboard and no mouse to play with yet; --list shows the devices"));
  }
  return {};
}

void PlaySession::StartLibrary() {
  LiveHost* host = LiveHost::GetInstance();
  host->SetGuestSize(size_);
  host->SetRotation(settings_.rotation);
  host->SetLineSink([this](const char* data, int length) { outlet_->Send(data, length); });
  connect(host, &LiveHost::InputStatusChanged, this, &PlaySession::TellState);
  connect(host, &LiveHost::TextFieldChanged, this, &PlaySession::TellState);
  connect(Recorder::GetInstance(), &Recorder::Changed, this, &PlaySession::TellState);
  connect(Replayer::GetInstance(), &Replayer::Changed, this, &PlaySession::TellState);
  host->Start([this](const QSize& /*view*/) { return Corner(); });
  taviinputmanager::UpdateReplayDisplayId(LiveHost::kDisplay);
  mapping_.ReadJoystick(QString());
}

// The library uses the distance of the window system's pointer from the view's corner. Our pointer is not the window
// system's, so the corner is set to give the right distance.
QPoint PlaySession::Corner() const { return QCursor::pos() - feeder_.Pointer().toPoint(); }

void PlaySession::ReadGamepads() {
  pad_poll_ = std::make_unique<GamepadPoll>(&pads_, [this](const QString& path) {
    QString problem;
    const auto device = source_->Open(path, &problem);
    return !device || !IsOfAGuest(device->Traits());
  });
}

QString PlaySession::LoadKeymap(const QString& path) {
  const QString refusal = RefusalOf(path, mapping_.Keymap());
  if (!refusal.isEmpty()) return refusal;
  watch_.Watch(path);  // before it is read, so that no change is missed
  mapping_.Read(path);
  feeder_.LetGo();
  TellFindings(mapping_.Keymap());
  TellState();
  return {};
}

QString PlaySession::LoadJoystickKeymap(const QString& path) {
  const QString refusal = RefusalOf(path, mapping_.JoystickKeymap());
  if (!refusal.isEmpty()) return refusal;
  joystick_watch_.Watch(path);
  mapping_.ReadJoystick(path);
  TellFindings(mapping_.JoystickKeymap());
  return {};
}

void PlaySession::TellFindings(const KeymapSource& source) {
  QStringList findings;
  const QString read = FormatDiagnostics(source.LastRead()).trimmed();
  if (!read.isEmpty()) findings += read;
  if (!source.LastRead().HasErrors()) {
    for (const tavikeymapmanager::Diagnostic& finding : reserved_.FindingsIn(source.InUse())) {
      findings += FormatDiagnostic(finding);
    }
  }
  if (source.KeepsEarlierState()) findings += QStringLiteral("The previous version of the keymap stays in use.");
  for (const QString& finding : std::as_const(findings)) Q_EMIT Told(finding);
}

// Contacts must be released at the size at which they were pressed.
QString PlaySession::SetSize(const QSize& size) {
  mapping_.LetGoOfEverything();
  feeder_.LetGo();
  const QString problem = outlet_->Open(size);
  if (!problem.isEmpty()) return problem;
  size_ = size;
  LiveHost::GetInstance()->SetGuestSize(size);
  TellState();
  return {};
}

void PlaySession::SetRotation(int degrees) {
  mapping_.LetGoOfEverything();
  feeder_.LetGo();
  LiveHost::GetInstance()->SetRotation(degrees);
  TellState();
}

void PlaySession::SetTextField(bool focused) {
  Reset();
  LiveHost::GetInstance()->SetTextField(focused);
}

void PlaySession::SetPaused(bool paused) {
  mapping_.SetPaused(paused);
  pads_.SetListening(!paused);
  feeder_.LetGo();
  if (paused) outlet_->LiftAll();
  devices_.SetGrabWanted(!paused);
  TellState();
}

void PlaySession::Reset() {
  InputPort::GetInstance()->LetGo();
  feeder_.LetGo();
}

void PlaySession::Panic() {
  mapping_.LetGoOfEverything();
  SetPaused(true);
}

void PlaySession::End() {
  if (has_ended_ || !LiveHost::GetInstance()->HasStarted()) return;
  has_ended_ = true;
  devices_.SetGrabWanted(false);
  pad_poll_.reset();
  mapping_.LetGoOfEverything();
  outlet_->Close();
  LiveHost::GetInstance()->SetLineSink({});
  LiveHost::GetInstance()->Start({});  // nobody reads our pointer anymore
}

void PlaySession::TakeFrame(int device, const InputFrame& frame, bool is_grabbed) {
  feeder_.Take(device, frame, is_grabbed && !mapping_.IsPaused());
}

void PlaySession::TakeGone(int device) { feeder_.Forget(device); }

// ---- Messages

QString PlaySession::MappingText() const {
  if (mapping_.IsPaused()) return QStringLiteral("mapping off");
  if (devices_.CountOf(DeviceGrab::State::kWaiting) > 0) return QStringLiteral("mapping waits for all keys to be up");
  return QStringLiteral("mapping on");
}

QString PlaySession::DevicesText() const {
  return QStringList{CountText(devices_.CountOf(DeviceKind::kKeyboard), QStringLiteral("keyboard")),
                     CountText(devices_.CountOf(DeviceKind::kMouse), QStringLiteral("mouse")),
                     CountText(pads_.Count(), QStringLiteral("gamepad"))}
      .join(QStringLiteral(", "));
}

QString PlaySession::State() const {
  const QString path = mapping_.Keymap().Path();
  const QString keymap = path.isEmpty() ? QStringLiteral("no keymap")
                                        : QStringLiteral("%1 (%2)").arg(QFileInfo(path).fileName(),
                                                                        ItemCountText(mapping_.Keymap().InUse()));
  const int rotation = LiveHost::GetInstance()->Geometry().rotation;
  QStringList parts{MappingText(), keymap, QStringLiteral("%1x%2").arg(size_.width()).arg(size_.height())};
  if (rotation != 0) parts += QStringLiteral("rotation %1").arg(rotation);
  parts << DevicesText() << ViewText() << TypingText() << RecordText() << ReplayText() << outlet_->State();
  parts.removeAll(QString());
  return parts.join(QStringLiteral(", "));
}

void PlaySession::TellState() {
  if (has_ended_) return;
  const QString state = State();
  if (state == std::exchange(told_state_, state)) return;
  Q_EMIT StateChanged(state);
}

}  // namespace tavi
