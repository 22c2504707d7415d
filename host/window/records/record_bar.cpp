#include "host/window/records/record_bar.h"

#include <memory>

#include <QActionGroup>
#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QToolButton>

#include "host/record/record_file.h"
#include "host/session/recorder.h"
#include "host/session/replayer.h"
#include "host/system/whole_file.h"
#include "host/window/controls/control_focus.h"
#include "host/window/controls/long_work.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::RecordStatus;
using State = Replayer::State;

namespace {

constexpr double kSpeeds[] = {0.25, 0.5, 1.0, 2.0, 4.0};
constexpr int kRefreshMs = 100;
constexpr int kProgressWidth = 180;
constexpr qint64 kAtOnceBytes = 16'000'000;  // a record of up to this size is read in less than half a second
constexpr char kFileTypes[] = "Records (*.json);;All files (*)";

QString TimeText(qint64 ms) {
  const qint64 tenths = ms / 100;
  return QStringLiteral("%1:%2.%3").arg(tenths / 600).arg(tenths / 10 % 60, 2, 10, QLatin1Char('0')).arg(tenths % 10);
}

bool IsLong(const QString& file) { return QFileInfo(file).size() > kAtOnceBytes; }

QString SpeedText(double speed) { return QStringLiteral("%1\u00D7").arg(speed); }

// For a call of the library that takes a while: the pointer shows it.
class Waiting {
 public:
  Waiting() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Waiting() { QApplication::restoreOverrideCursor(); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
};

}  // namespace

RecordBar::RecordBar(QWidget* parent)
    : QToolBar(QStringLiteral("Records"), parent),
      record_(AddButton(QStringLiteral("\u25CF Record"), QStringLiteral("Record what the guest gets"))),
      pause_record_(AddButton(QStringLiteral("Pause"), QStringLiteral("Leave out everything until Resume"))),
      recorded_(new QLabel),
      open_(nullptr),
      play_(nullptr),
      restart_(nullptr),
      stop_(nullptr),
      progress_(new QProgressBar),
      second_view_(nullptr),
      ask_(AskIn(this)),
      ask_for_name_(AskForNameIn(this)) {
  setObjectName(QStringLiteral("records"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  recorded_->setAccessibleName(QStringLiteral("Time recorded"));
  addWidget(recorded_);
  addSeparator();
  open_ = AddButton(QStringLiteral("Open record\u2026"), QStringLiteral("Open a record for replay"));
  play_ = AddButton(QStringLiteral("\u25B6 Play"), QString());
  restart_ = AddButton(QStringLiteral("Restart"), QStringLiteral("Play from the start again"));
  stop_ = AddButton(QStringLiteral("Stop"), QStringLiteral("End the replay and release what it holds"));
  AddSpeedButton();
  progress_->setFixedWidth(kProgressWidth);
  progress_->setFormat(QString());
  progress_->setAccessibleName(QStringLiteral("Time played"));
  addWidget(progress_);
  second_view_ = AddButton(QStringLiteral("Second view"),
                           QStringLiteral("Replay on a display of its own, beside the one that you play on"));
  second_view_->setCheckable(true);
  ReachByTab(this);
  toggleViewAction()->setVisible(false);  // always shown

  connect(record_, &QAction::triggered, this, &RecordBar::ToggleRecording);
  connect(pause_record_, &QAction::triggered, this, &RecordBar::TogglePause);
  connect(open_, &QAction::triggered, this, [this] { OpenRecord(); });
  connect(play_, &QAction::triggered, this, &RecordBar::TogglePlaying);
  connect(restart_, &QAction::triggered, Replayer::GetInstance(), &Replayer::Restart);
  connect(stop_, &QAction::triggered, Replayer::GetInstance(), &Replayer::Stop);
  connect(&refresh_, &QTimer::timeout, this, &RecordBar::ShowTimes);
  connect(Recorder::GetInstance(), &Recorder::Changed, this, &RecordBar::Show);
  connect(Recorder::GetInstance(), &Recorder::Saved, this, &RecordBar::TakeSaved);
  connect(Replayer::GetInstance(), &Replayer::Changed, this, &RecordBar::Show);
  connect(Replayer::GetInstance(), &Replayer::Refused, this, [this](const QString& file) {
    Q_EMIT Message(QStringLiteral("%1 contains no actions that can be replayed").arg(file), true);
  });
  Show();
}

QAction* RecordBar::AddButton(const QString& text, const QString& hint) {
  QAction* action = addAction(text);
  action->setToolTip(hint);
  return action;
}

void RecordBar::AddSpeedButton() {
  auto* button = new QToolButton(this);
  button->setMenu(MakeSpeedMenu());
  button->setPopupMode(QToolButton::InstantPopup);
  button->setToolTip(QStringLiteral("Speed of the next replay"));
  const auto show = [this, button] {
    button->setText(SpeedText(Speed()));
    button->setAccessibleName(QStringLiteral("Speed %1").arg(button->text()));
  };
  connect(speeds_, &QActionGroup::triggered, this, show);
  show();
  addWidget(button);
}

QMenu* RecordBar::MakeSpeedMenu() {
  auto* menu = new QMenu(QStringLiteral("Speed"), this);
  speeds_ = new QActionGroup(menu);
  for (const double speed : kSpeeds) {
    QAction* action = speeds_->addAction(menu->addAction(SpeedText(speed)));
    action->setCheckable(true);
    action->setData(speed);
    action->setChecked(speed == 1.0);
  }
  menu->addSeparator();
  hand_ = menu->addAction(QStringLiteral("Like a human hand: each tap is a pixel or two off"));
  hand_->setCheckable(true);
  return menu;
}

double RecordBar::Speed() const { return speeds_->checkedAction()->data().toDouble(); }

// ---- User actions

void RecordBar::ToggleRecording() {
  Recorder* recorder = Recorder::GetInstance();
  if (recorder->HasRecording()) {
    SaveRecording();
    return;
  }
  const QString problem = target_.isEmpty() ? QString() : TryWholeFile(target_);
  if (!problem.isEmpty()) {
    return Q_EMIT Message(QStringLiteral("Not recording: %1 cannot be written: %2").arg(target_, problem), true);
  }
  recorder->Start(app_);
}

void RecordBar::TogglePause() {
  Recorder* recorder = Recorder::GetInstance();
  if (recorder->Status() == RecordStatus::Paused) {
    recorder->Resume();
  } else {
    recorder->Pause();
  }
}

QString RecordBar::AskForTarget() {
  Recorder* recorder = Recorder::GetInstance();
  // The dialog is not part of the recording, and the user may cancel it and continue.
  if (recorder->Status() == RecordStatus::Recording) recorder->Pause();
  const QString file = ask_for_name_(
      {QStringLiteral("Save the record"), folder_, QString::fromLatin1(kFileTypes), QStringLiteral("json")});
  Q_EMIT DialogClosed();
  return file;
}

QString RecordBar::SaveTo(const QString& file) {
  Announce(QStringLiteral("Saving %1\u2026").arg(file));
  const Waiting waiting;
  Recorder* recorder = Recorder::GetInstance();
  const QString problem = recorder->End();
  return problem.isEmpty() ? recorder->Save(file) : problem;
}

bool RecordBar::SaveRecording() {
  QString file = target_.isEmpty() ? AskForTarget() : target_;
  while (!file.isEmpty()) {
    const QString problem = SaveTo(file);
    Q_EMIT Message(problem.isEmpty() ? QStringLiteral("Saved %1").arg(file) : problem, !problem.isEmpty());
    if (Recorder::GetInstance()->KeptFile().isEmpty()) break;
    file = AskAfter(problem, file);
  }
  return !Recorder::GetInstance()->HasRecording();
}

QString RecordBar::AskAfter(const QString& problem, const QString& file) {
  const auto answer = ask_(QStringLiteral("%1.\n\nThe recording is kept.").arg(problem),
                           {{QMessageBox::Save, QStringLiteral("Save as\u2026")},
                            {QMessageBox::Retry, {}},
                            {QMessageBox::Discard, QStringLiteral("Discard")},
                            {QMessageBox::Cancel, {}}});
  if (answer == QMessageBox::Discard) Recorder::GetInstance()->Discard();
  if (answer == QMessageBox::Save) return AskForTarget();
  return answer == QMessageBox::Retry ? file : QString();
}

bool RecordBar::MayLeave() {
  Recorder* recorder = Recorder::GetInstance();
  if (!recorder->HasRecording()) return true;
  if (!target_.isEmpty()) return SaveRecording();
  const auto answer = ask_(QStringLiteral("Save the recording?"),
                           {{QMessageBox::Save, {}}, {QMessageBox::Discard, {}}, {QMessageBox::Cancel, {}}});
  if (answer == QMessageBox::Discard) recorder->Discard();
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && SaveRecording());
}

QString RecordBar::SaveWithoutAsking() {
  Recorder* recorder = Recorder::GetInstance();
  QString problem = recorder->End();
  if (recorder->KeptFile().isEmpty()) return problem;
  const QString target = target_;  // the save resets it
  if (!target.isEmpty()) problem = recorder->Save(target) + QStringLiteral("; ");
  if (recorder->KeptFile().isEmpty()) return {};
  return problem + QStringLiteral("the recording was saved as %1").arg(recorder->KeptFile());
}

// A saved recording is opened for replay, unless another record is playing.
void RecordBar::TakeSaved(const QString& file, const RecordInfo& info) {
  target_.clear();  // another recording must not replace it
  folder_ = QFileInfo(file).absolutePath();
  const State state = Replayer::GetInstance()->GetState();
  if (state == State::kNone || state == State::kFinished) Replayer::GetInstance()->Open(file, info);
}

// Painted now, because the next step blocks the event loop.
void RecordBar::Announce(const QString& text) {
  Q_EMIT Message(text, false);
  window()->repaint();
}

bool RecordBar::OpenRecord(QString file) {
  if (file.isEmpty()) {
    file = AskForFile(this, QStringLiteral("Open a record"), folder_, QString::fromLatin1(kFileTypes));
    Q_EMIT DialogClosed();
  }
  if (file.isEmpty()) return false;
  folder_ = QFileInfo(file).absolutePath();
  const std::optional<RecordInfo> info = Read(file);
  if (!info) return false;
  Replayer::GetInstance()->Open(file, *info);
  return true;
}

std::optional<RecordInfo> RecordBar::Read(const QString& file) {
  const QString refusal = RecordRefusal(file);
  if (!refusal.isEmpty()) {
    Q_EMIT Message(QStringLiteral("%1 cannot be read: %2").arg(file, refusal), true);
    return std::nullopt;
  }
  struct Result {
    bool is_record = false;
    RecordInfo info;
  };
  const auto result = std::make_shared<Result>();  // a cancelled read still needs it
  const auto read = [file, result] { result->is_record = taviinputmanager::GetRecordInfo(file, &result->info); };
  if (!IsLong(file)) {
    read();
  } else {
    const bool is_done = DoLongWork(this, QStringLiteral("Reading %1\u2026").arg(QFileInfo(file).fileName()), read);
    Q_EMIT DialogClosed();
    if (!is_done) return std::nullopt;
  }
  if (result->is_record) return result->info;
  Q_EMIT Message(QStringLiteral("%1 is not a record").arg(file), true);
  return std::nullopt;
}

void RecordBar::TogglePlaying() {
  Replayer* replayer = Replayer::GetInstance();
  switch (replayer->GetState()) {
    case State::kNone:
    case State::kFinished: return Play();
    case State::kStarting: return;
    case State::kPlaying: return replayer->Pause();
    case State::kPaused: return replayer->Resume();
  }
}

void RecordBar::Play() {
  Replayer* replayer = Replayer::GetInstance();
  if (IsLong(replayer->File())) Announce(QStringLiteral("Reading %1\u2026").arg(replayer->File()));
  const Waiting waiting;
  replayer->Play({Speed(), hand_->isChecked()});
}

// ---- What is shown

void RecordBar::Show() {
  ShowRecording();
  ShowReplay();
  ShowTimes();
  const bool is_running = Recorder::GetInstance()->Status() == RecordStatus::Recording ||
                          Replayer::GetInstance()->GetState() == State::kPlaying;
  if (is_running && !refresh_.isActive()) refresh_.start(kRefreshMs);
  if (!is_running) refresh_.stop();
}

void RecordBar::ShowRecording() {
  const RecordStatus status = Recorder::GetInstance()->Status();
  const bool is_stopped = status == RecordStatus::Stopped;
  const bool has_recording = Recorder::GetInstance()->HasRecording();
  record_->setText(has_recording ? QStringLiteral("\u25A0 Save\u2026") : QStringLiteral("\u25CF Record"));
  record_->setToolTip(has_recording ? QStringLiteral("End the recording and save it")
                                    : QStringLiteral("Record what the guest gets"));
  pause_record_->setEnabled(!is_stopped);
  pause_record_->setText(status == RecordStatus::Paused ? QStringLiteral("Resume") : QStringLiteral("Pause"));
}

void RecordBar::ShowReplay() {
  const Replayer* replayer = Replayer::GetInstance();
  const State state = replayer->GetState();
  play_->setEnabled(!replayer->File().isEmpty() && state != State::kStarting);
  play_->setText(state == State::kPlaying ? QStringLiteral("\u275A\u275A Pause") : QStringLiteral("\u25B6 Play"));
  play_->setToolTip(replayer->File().isEmpty() ? QStringLiteral("Open a record first") : replayer->File());
  const bool has_replay = state != State::kNone && state != State::kStarting;
  restart_->setEnabled(has_replay);
  stop_->setEnabled(has_replay);
}

void RecordBar::ShowTimes() {
  const Recorder* recorder = Recorder::GetInstance();
  recorded_->setText(!recorder->HasRecording() ? QString() : TimeText(recorder->RecordedMs()));
  const Replayer* replayer = Replayer::GetInstance();
  progress_->setRange(0, static_cast<int>(qBound(qint64{1}, replayer->TotalMs(), qint64{0x7FFFFFFF})));
  progress_->setValue(static_cast<int>(qMin<qint64>(replayer->PlayedMs(), progress_->maximum())));
  progress_->setToolTip(TimeText(replayer->PlayedMs()) + QStringLiteral(" of ") + TimeText(replayer->TotalMs()));
}

}  // namespace tavi
