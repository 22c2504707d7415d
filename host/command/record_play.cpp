#include "host/command/record_play.h"

#include <atomic>

#include <QAbstractEventDispatcher>
#include <QDateTime>
#include <QGuiApplication>
#include <QTimer>

#include "host/command/command_line.h"
#include "host/command/guest_option.h"
#include "host/record/record_file.h"
#include "host/simulation/simulated_host.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "host/system/console.h"
#include "host/system/terminal.h"
#include "host/system/window_system.h"
#include "host/target/guest_targets.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

const QString kCommand = QStringLiteral("record play");

constexpr char kHelp[] =
    "Usage: tavi record play [OPTIONS] FILE\n"
    "\n"
    "Plays a record and prints every line for the guest, and after a \"!\" every call of the\n"
    "host, each with the time in milliseconds since the start. It does not wait: time is\n"
    "virtual.\n"
    "\n"
    "  --speed X     play it X times as fast, any number above 0 (1)\n"
    "  --emulation   let fingers miss their points by up to 2 pixels, at random\n"
    "  --size WxH    the guest's display in pixels, each side from 1 to 16384 (as it was\n"
    "                recorded)\n"
    "  --live        play in real time, and print each line when it is due\n"
    "  --guest TARGET\n"
    "                with --live, also send the lines to a guest: to the standard input of a\n"
    "                command (exec:COMMAND), a socket file (unix:PATH), a port of this\n"
    "                machine (tcp:HOST:PORT) or input devices of its kernel (uinput); repeat\n"
    "                it for several guests\n"
    "  --allow-remote\n"
    "                let tcp: connect to other machines, although anyone on the network path\n"
    "                can read what is typed\n"
    "\n"
    "The replay starts when each guest is connected or has failed to connect. Whatever ends\n"
    "it, what is down at the guests is lifted first.\n"
    "\n"
    "Exit status: 0 when it was played, 1 when the replay did not start or a guest was\n"
    "not connected at the end, 2 when the record or the command line cannot be used, 128\n"
    "plus the signal's number when a signal ended a replay with guests.\n"
    "\n"
    "Example: tavi record play --speed 2 examples/records/walk.json\n";

const QString kSpeed = QStringLiteral("--speed");
const QString kEmulation = QStringLiteral("--emulation");
const QString kLive = QStringLiteral("--live");

constexpr QSize kDefaultGuest(1280, 720);
constexpr int kDisplay = 1;
constexpr int kTask = 1;
constexpr int kStartLimitMs = 5000;   // a replay starts at once, or never
constexpr int kAnswerLimitMs = 5000;  // the targets

struct PlayOptions {
  QString file;
  taviinputmanager::ReplayParam param;
  QSize guest;  // empty: the size that the record was made with
  bool is_live = false;
  QVector<TargetAddress> targets;
};

// Returns the error, or an empty string.
QString ReadOptions(const ParsedArguments& parsed, PlayOptions* options) {
  if (!parsed.error.isEmpty()) return parsed.error;
  if (parsed.positional.size() != 1) return QStringLiteral("one record is needed");
  options->file = parsed.positional[0];
  options->is_live = parsed.options.contains(kLive);
  options->param.emulation_mode = parsed.options.contains(kEmulation);
  QString problem = TakeFactor(parsed.Find(kSpeed), &options->param.speed_ratio);
  if (problem.isEmpty()) problem = TakeSize(FindSize(parsed), &options->guest);
  if (problem.isEmpty()) problem = TakeTargets(parsed, &options->targets);
  const bool is_too_fast = !options->targets.isEmpty() && !options->is_live;
  return problem.isEmpty() && is_too_fast ? QStringLiteral("--guest needs %1").arg(kLive) : problem;
}

QSize GuestSize(const PlayOptions& options) {
  if (!options.guest.isEmpty()) return options.guest;
  RecordInfo info;
  taviinputmanager::GetRecordInfo(options.file, &info);
  return info.resolution.isEmpty() ? kDefaultGuest : info.resolution;
}

// The callbacks of the replay. All but the host commands are called on a thread of the replay, unless time is virtual.
struct ReplayFunctions {
  static void Say(const QString& text) { SimulatedHost::GetInstance()->Say(text); }
  static void Started(int /*task*/, const QString& /*file*/) {
    Say(QStringLiteral("replay started"));
    has_started = true;
  }
  static void Finished(int /*task*/, const QString& /*file*/, taviinputmanager::ReplayParam /*param*/) {
    Say(QStringLiteral("replay finished"));
    // After the lines that are still queued for the main thread.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(kExitDone); }, Qt::QueuedConnection);
  }
  static void Ignore(int /*task*/, const QString& /*file*/) {}
  static void HostCommand(const QString& data, const QString& extra1, const QString& extra2, int /*task*/,
                          const QString& /*file*/) {
    const bool has_extras = !extra1.isEmpty() || !extra2.isEmpty();
    const QString extras = has_extras ? QStringLiteral(" | %1 | %2").arg(extra1, extra2) : QString();
    Say(QStringLiteral("vcontrol ") + data + extras);
  }

  static taviinputmanager::InputReplayerCallbacks Table() {
    taviinputmanager::InputReplayerCallbacks table;
    table.started = Started;
    table.paused = Ignore;
    table.resumed = Ignore;
    table.stopped = Ignore;
    table.finished = Finished;
    table.vcontrol = HostCommand;
    return table;
  }

  static std::atomic<bool> has_started;
};

std::atomic<bool> ReplayFunctions::has_started{false};

// The targets of the replay. A replay's thread may send to them as long as the program runs.
GuestTargets* Targets() {
  static GuestTargets targets;
  return &targets;
}

// As the library sent it.
QByteArray BytesOf(const TimelineEntry& entry) {
  return entry.text.toUtf8() + (entry.source == TimelineEntry::Source::kText ? '\0' : '\n');
}

// One call per line, so that lines of two threads do not mix.
void TellEntry(const TimelineEntry& entry) {
  if (entry.source != TimelineEntry::Source::kCallback) {
    const QByteArray bytes = BytesOf(entry);
    Targets()->Send(bytes.constData(), bytes.size());
  }
  Print(FormatLine(entry));
}

// While it exists, the targets get what is played; afterwards nothing is down in them, also if a signal ends the
// program.
class GuestsInUse {
 public:
  GuestsInUse(const QVector<TargetAddress>& addresses, const QSize& surface) : has_guests_(!addresses.isEmpty()) {
    if (!has_guests_) return;
    QObject::connect(Targets(), &GuestTargets::Message, Targets(),
                     [](const QString& text) { PrintError(QStringLiteral("tavi record play: %1\n").arg(text)); });
    Targets()->SetSurface(surface);
    for (const TargetAddress& address : addresses) Targets()->Add(address);
    SetInterruptionTaker([](int number) {
      QMetaObject::invokeMethod(
          QCoreApplication::instance(), [number] { QCoreApplication::exit(ExitStatusOfSignal(number)); },
          Qt::QueuedConnection);
    });
  }
  ~GuestsInUse() {
    Targets()->Close();
    if (has_guests_) SetInterruptionTaker({});
  }
  GuestsInUse(const GuestsInUse&) = delete;
  GuestsInUse& operator=(const GuestsInUse&) = delete;

  // Waits until each target is connected or has failed to. The program exits with any status other than kExitDone.
  int WaitForAnswers() {
    if (Targets()->HaveAllAnswered()) return kExitDone;
    QObject context;
    QObject::connect(Targets(), &GuestTargets::Changed, &context, [] {
      if (Targets()->HaveAllAnswered()) QCoreApplication::exit(kExitDone);
    });
    QTimer::singleShot(kAnswerLimitMs, &context, [] { QCoreApplication::exit(kExitDone); });
    return QCoreApplication::exec();
  }

  bool AreAllConnected() const {
    for (int target = 0; target < Targets()->Count(); ++target) {
      if (Targets()->StatusOf(target).state != TargetStatus::State::kConnected) return false;
    }
    return true;
  }

 private:
  const bool has_guests_;
};

void StartHost(const QSize& guest) {
  SimulatedHost* host = SimulatedHost::GetInstance();
  host->display = host->touch = QRect(QPoint(0, 0), guest);
  const auto* clock = qobject_cast<taviinputmanager::VirtualTime*>(QCoreApplication::eventDispatcher());
  host->Start([clock] { return clock ? clock->NowMs() : QDateTime::currentMSecsSinceEpoch(); });
  taviinputmanager::UpdateDisplayId(kDisplay);  // where the fingers are lifted at the end of a replay
  QCoreApplication::sendPostedEvents();
  host->StartTimeline();
  host->listener = TellEntry;
}

int Replay(const PlayOptions& options) {
  static taviinputmanager::InputReplayerCallbacks table = ReplayFunctions::Table();
  taviinputmanager::InitializeReplayCallbacks(&table);
  taviinputmanager::UpdateReplayDisplayId(kDisplay);
  taviinputmanager::StartReplay(0, kTask, QString(), options.file, options.param);
  // The file may have been deleted since it was checked.
  QTimer::singleShot(kStartLimitMs, QCoreApplication::instance(), [] {
    if (!ReplayFunctions::has_started) QCoreApplication::exit(kExitProblem);
  });
  const int status = QCoreApplication::exec();
  if (status == kExitProblem) PrintError(QStringLiteral("%1: the replay did not start\n").arg(options.file));
  return status;
}

int Run(const Invocation& invocation) {
  PlayOptions options;
  const ParsedArguments parsed = ParseArguments(invocation.arguments, OptionsOf(kHelp));
  const QString problem = ReadOptions(parsed, &options);
  if (!problem.isEmpty()) return FailUsage(kCommand, problem);
  if (!IsRecordUsable(options.file, ReadRecordFile(options.file))) return kExitUsage;
  DoWithoutWindowSystem();  // neither clock needs a window system
  if (!options.targets.isEmpty()) {
    GoOnWithoutReader();
    SetCleanUp({});  // signals have a thread of their own, which must start before others
  }
  if (!options.is_live) QCoreApplication::setEventDispatcher(new VirtualEventDispatcher);
  if (options.is_live) PrintAtOnce();  // each line is visible when it is due
  const QGuiApplication application(invocation.argc, invocation.argv);
  const QSize surface = GuestSize(options);
  GuestsInUse guests(options.targets, surface);
  const int answered = guests.WaitForAnswers();
  if (answered != kExitDone) return answered;
  StartHost(surface);
  const int status = Replay(options);
  return status == kExitDone && !guests.AreAllConnected() ? kExitProblem : status;
}

}  // namespace

Subcommand RecordPlayCommand() { return {"record play", "prints what a record plays", kHelp, Run}; }

}  // namespace tavi
