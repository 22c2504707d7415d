#include "host/command/play_command.h"

#include <atomic>
#include <cstdlib>
#include <memory>
#include <vector>

#include <QFileInfo>
#include <QGuiApplication>

#include "host/command/command_line.h"
#include "host/command/guest_option.h"
#include "host/play/app_keymaps.h"
#include "host/play/control_socket.h"
#include "host/play/control_words.h"
#include "host/play/device_folder.h"
#include "host/play/epoll_dispatcher.h"
#include "host/play/play_control.h"
#include "host/play/play_session.h"
#include "host/play/rights_advice.h"
#include "host/play/screen_size.h"
#include "host/play/targets_outlet.h"
#include "host/play/uinput_outlet.h"
#include "host/play/watchdog.h"
#include "host/system/console.h"
#include "host/system/plain_file.h"
#include "host/system/terminal.h"
#include "host/system/window_system.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi play [OPTIONS] KEYMAP\n"
    "       tavi play [OPTIONS] --keymaps FOLDER [KEYMAP]\n"
    "       tavi play --list [--device DEVICE]...\n"
    "       tavi play --control WORDS [--name NAME]\n"
    "\n"
    "Plays without a window: takes this computer's keyboards, mice and gamepads, applies the\n"
    "keymap to their input, and plays the result on a touch screen, a keyboard and a pointer\n"
    "that it makes on the same computer, for a full-screen Android container or any program\n"
    "with touch. While the mapping is on, no other program gets the keys. When you save the\n"
    "keymap, it is reloaded at once. Each change of the state is printed as a line.\n"
    "\n"
    "  --joystick FILE  the gamepad keymap, also reloaded when you save it; without it,\n"
    "                   gamepads pass through to the guest\n"
    "  --device DEVICE  take only this device, by its name or its file; repeat it for\n"
    "                   several devices (all keyboards and mice)\n"
    "  --guest TARGET   send the lines to this guest, and make no devices here:\n"
    "                   exec:COMMAND, unix:PATH, tcp:HOST:PORT or uinput; repeat it for\n"
    "                   several guests\n"
    "  --allow-remote   let tcp: connect to other machines, although anyone on the network\n"
    "                   path can read what you type\n"
    "  --size WxH       the guest's touch screen in pixels, each side from 1 to 16384 (the\n"
    "                   size of this computer's screen, or 1280x720 if that is unknown)\n"
    "  --rotation DEG   the rotation of the guest's display: 0, 90, 180, 270 (0)\n"
    "  --speed X        how many pixels the pointer moves per count of the mouse, any number\n"
    "                   above 0 (1)\n"
    "  --pause-key KEY  the key that gives the devices back, and takes them again (F12)\n"
    "  --panic-key KEY  the key that lifts every finger and key of the guest, ends replays\n"
    "                   and macros, and gives the devices back (Ctrl+Alt+Backspace)\n"
    "  --paused         start with the mapping off\n"
    "  --keymaps FOLDER\n"
    "                   keymaps of apps, identified by their field \"package\"; without\n"
    "                   KEYMAP, that of the app that was played last\n"
    "  --name NAME      the name of this player for --control, a word of letters, digits, -\n"
    "                   and _ (play)\n"
    "  --control WORDS  send a command to the player that is running: keymap FILE, app NAME,\n"
    "                   reset, rotation DEG, size WxH, text on|off, pause, resume,\n"
    "                   record FILE, replay FILE, stop, state, quit\n"
    "  --list           list the devices: which would be taken, and why not the others\n"
    "\n"
    "KEY is a key as keymaps name it, optionally after Ctrl+, Alt+, Shift+ or Meta+. These\n"
    "keys always work, whatever the keymap says. docs/play.md leads you to a first tap.\n"
    "\n"
    "When a signal ends it (Ctrl+C, SIGTERM, SIGHUP), it lifts what is down, gives the\n"
    "devices back and saves the recording.\n"
    "\n"
    "Exit status: 0 when it was told to quit or the answer to --control was \"ok\", 1 when it\n"
    "could not play or the answer was an error, 2 for a wrong command line or a keymap that\n"
    "cannot be used, 128 plus the signal's number after a signal.\n"
    "\n"
    "Example: tavi play examples/keymaps/shooter.yaml\n";

const QString kName = QStringLiteral("play");
const QString kJoystick = QStringLiteral("--joystick");
const QString kDevice = QStringLiteral("--device");
const QString kSize = QStringLiteral("--size");
const QString kRotation = QStringLiteral("--rotation");
const QString kSpeed = QStringLiteral("--speed");
const QString kPauseKey = QStringLiteral("--pause-key");
const QString kPanicKey = QStringLiteral("--panic-key");
const QString kPaused = QStringLiteral("--paused");
const QString kKeymaps = QStringLiteral("--keymaps");
const QString kSocket = QStringLiteral("--name");
const QString kControl = QStringLiteral("--control");
const QString kList = QStringLiteral("--list");

constexpr QSize kUsualSize(1280, 720);
// Ten seconds without an iteration of the event loop: longer than reading the longest record takes.
constexpr int kLookMs = 1000;
constexpr int kPatience = 10;

struct PlayOptions {
  QString keymap;           // empty: the one of the last app
  QString joystick_keymap;  // empty: none
  QString keymaps;          // a folder; empty: none
  QVector<TargetAddress> targets;
  bool has_size = false;
  QString socket = QLatin1String(ControlSocket::kUsualName);
  QString control;  // empty: play
  bool is_list = false;
  PlaySettings settings;
};

void Tell(const QString& text) {
  for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    PrintError(QStringLiteral("tavi play: %1\n").arg(line));
  }
}

// ---- The command line. Each function returns the error, or an empty string.

QString ReadKey(const QString& option, const ParsedArguments& arguments, const char* usual, KeyCombination* key) {
  const QString problem = ParseKeyCombination(arguments.options.value(option, QLatin1String(usual)), key);
  return problem.isEmpty() ? problem : QStringLiteral("%1: %2").arg(option, problem);
}

QString ReadKeys(const ParsedArguments& arguments, PlaySettings* settings) {
  QString problem = ReadKey(kPauseKey, arguments, "F12", &settings->pause_key);
  if (problem.isEmpty()) problem = ReadKey(kPanicKey, arguments, "Ctrl+Alt+Backspace", &settings->panic_key);
  const bool is_one_key = settings->pause_key.scancode == settings->panic_key.scancode;
  if (problem.isEmpty() && is_one_key) return QStringLiteral("%1 and %2 use the same key").arg(kPauseKey, kPanicKey);
  return problem;
}

QString ReadGuest(const ParsedArguments& arguments, PlayOptions* options) {
  options->has_size = arguments.options.contains(kSize);
  QString problem = TakeSize(arguments.Find(kSize), &options->settings.size);
  if (problem.isEmpty()) problem = TakeFactor(arguments.Find(kSpeed), &options->settings.speed);
  if (!problem.isEmpty()) return problem;
  const QString rotation = arguments.options.value(kRotation, QStringLiteral("0"));
  if (!QStringList{"0", "90", "180", "270"}.contains(rotation)) {
    return QStringLiteral("%1 needs 0, 90, 180 or 270, not \"%2\"").arg(kRotation, rotation);
  }
  options->settings.rotation = rotation.toInt();
  return {};
}

QString ReadTargets(const ParsedArguments& arguments, PlayOptions* options) {
  for (const GivenArgument& given : arguments.in_order) {
    if (given.option == kDevice) options->settings.devices += given.value;
  }
  return TakeTargets(arguments, &options->targets);
}

QString FileProblem(const QString& file) {
  if (file.isEmpty() || QFileInfo(file).isFile()) return {};
  const QString problem = NoFileProblem(file);
  return QStringLiteral("%1: %2").arg(problem.isEmpty() ? QStringLiteral("no such file") : problem, file);
}

QString ReadFiles(const ParsedArguments& arguments, PlayOptions* options) {
  if (arguments.positional.size() > 1) return QStringLiteral("more than one keymap");
  options->keymap = arguments.positional.value(0);
  options->joystick_keymap = arguments.options.value(kJoystick);
  options->keymaps = arguments.options.value(kKeymaps);
  for (const QString& file : {options->keymap, options->joystick_keymap}) {
    const QString problem = FileProblem(file);
    if (!problem.isEmpty()) return problem;
  }
  if (!options->keymaps.isEmpty() && !QFileInfo(options->keymaps).isDir()) {
    return QStringLiteral("no such folder: %1").arg(options->keymaps);
  }
  const bool plays = options->control.isEmpty() && !options->is_list;
  if (plays && options->keymap.isEmpty() && options->keymaps.isEmpty()) return QStringLiteral("a keymap is needed");
  return {};
}

QString ReadOptions(const ParsedArguments& arguments, PlayOptions* options) {
  if (!arguments.error.isEmpty()) return arguments.error;
  options->control = arguments.options.value(kControl);
  if (arguments.options.contains(kControl) && options->control.trimmed().isEmpty()) {
    return QStringLiteral("%1 needs words").arg(kControl);
  }
  options->is_list = arguments.options.contains(kList);
  options->settings.is_paused = arguments.options.contains(kPaused);
  options->socket = arguments.options.value(kSocket, options->socket);
  QString problem = ReadFiles(arguments, options);
  if (problem.isEmpty()) problem = ReadTargets(arguments, options);
  if (problem.isEmpty()) problem = ReadGuest(arguments, options);
  return problem.isEmpty() ? ReadKeys(arguments, &options->settings) : problem;
}

// ---- The list of devices

QString RowOf(const PlayDevices::Listed& entry) {
  if (!entry.problem.isEmpty()) return QStringLiteral("%1  not readable: %2\n").arg(entry.traits.path, entry.problem);
  const QString kind = WordOf(KindOf(entry.traits));
  const QString fate =
      entry.refusal.isEmpty() ? QStringLiteral("taken") : QStringLiteral("not taken: %1").arg(entry.refusal);
  return QStringLiteral("%1  %2  \"%3\"  %4\n").arg(entry.traits.path, kind, entry.traits.name, fate);
}

QStringList UnreadableIn(const std::vector<PlayDevices::Listed>& list) {
  QStringList paths;
  for (const PlayDevices::Listed& entry : list) {
    if (!entry.problem.isEmpty()) paths += entry.traits.path;
  }
  return paths;
}

int ListDevices(const PlayOptions& options) {
  DeviceFolder folder;
  const std::vector<PlayDevices::Listed> list = PlayDevices::List(&folder, options.settings.devices);
  for (const PlayDevices::Listed& entry : list) Print(RowOf(entry));
  FlushOutput();  // before the messages about it
  if (list.empty()) Tell(QStringLiteral("there are no devices in %1").arg(QLatin1String(DeviceFolder::kUsualFolder)));
  const QString advice = RightsAdvice(UnreadableIn(list), options.targets.isEmpty());
  Tell(advice);
  return list.empty() || !advice.isEmpty() ? kExitProblem : kExitDone;
}

// ---- Commands for the running player

int AskForControl(const PlayOptions& options) {
  const ControlAnswer answer = AskPlayer(options.socket, WithAbsoluteFile(options.control));
  if (!answer.is_ok) {
    Tell(answer.text);
    return kExitProblem;
  }
  Print((answer.text.isEmpty() ? QStringLiteral("ok") : answer.text) + QLatin1Char('\n'));
  return kExitDone;
}

// ---- Play

// The size of this computer's screen means nothing to a guest elsewhere.
void ChooseSize(PlayOptions* options) {
  if (options->has_size) return;
  const QSize screen = options->targets.empty() ? ScreenSize() : QSize();
  options->settings.size = screen.isEmpty() ? kUsualSize : screen;
  const QString size = QStringLiteral("%1x%2").arg(options->settings.size.width()).arg(options->settings.size.height());
  Tell(screen.isEmpty() ? QStringLiteral("the touch screen is %1; --size sets another size").arg(size)
                        : QStringLiteral("the touch screen is %1, as this computer's screen").arg(size));
}

std::unique_ptr<GuestOutlet> MakeOutlet(const PlayOptions& options) {
  if (options.targets.isEmpty()) return std::make_unique<UinputOutlet>(Tell);
  return std::make_unique<TargetsOutlet>(options.targets, Tell);
}

void ExitLater(int status) {
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [status] { QCoreApplication::exit(status); }, Qt::QueuedConnection);
}

void ExitBySignal(int number) { ExitLater(ExitStatusOfSignal(number)); }

// While it exists, a signal that ends the program makes it quit the event loop and clean up.
class InterruptionWatch {
 public:
  InterruptionWatch() { SetInterruptionTaker(ExitBySignal); }
  ~InterruptionWatch() { SetInterruptionTaker({}); }
  InterruptionWatch(const InterruptionWatch&) = delete;
  InterruptionWatch& operator=(const InterruptionWatch&) = delete;
};

// Returns the error, or an empty string.
QString LoadKeymaps(const PlayOptions& options, const AppKeymaps* apps, PlaySession* session, PlayControl* control) {
  QString problem;
  if (!options.keymap.isEmpty()) {
    problem = session->LoadKeymap(options.keymap);
  } else if (!apps->LastApp().isEmpty()) {
    const QString forgotten = control->UseApp(apps->LastApp());
    if (!forgotten.isEmpty()) Tell(forgotten);  // its keymap may be gone; --control can choose another
  } else {
    Tell(QStringLiteral("no app was played yet; choose one with \"tavi play --control 'app NAME'\": %1")
             .arg(apps->Apps().join(QStringLiteral(", "))));
  }
  if (!problem.isEmpty() || options.joystick_keymap.isEmpty()) return problem;
  return session->LoadJoystickKeymap(options.joystick_keymap);
}

// Missing permissions are reported before any device is made.
bool IsAnythingMissing(const PlayOptions& options) {
  DeviceFolder folder;
  const std::vector<PlayDevices::Listed> list = PlayDevices::List(&folder, options.settings.devices);
  const QStringList unreadable = UnreadableIn(list);
  const bool is_none_readable = !list.empty() && unreadable.size() == static_cast<int>(list.size());
  const QString advice = RightsAdvice(is_none_readable ? unreadable : QStringList(), options.targets.isEmpty());
  Tell(advice);
  return !advice.isEmpty();
}

// False if another player has this name. Without a usable socket, the player runs all the same.
bool Listen(const QString& name, ControlSocket* socket) {
  const QString problem = socket->Listen(name);
  if (problem.isEmpty()) return true;
  const bool is_taken = ControlSocket::HasPlace();
  Tell(is_taken ? QStringLiteral("%1; --name sets another name").arg(problem)
                : QStringLiteral("--control will not work: %1").arg(problem));
  return !is_taken;
}

void TellState(const QString& state) {
  Print(state + QLatin1Char('\n'));
  FlushOutput();
}

// When the process ends, the kernel releases the devices, and the guest's keeper lifts what is down.
void EndAtOnce(int status) {
  Tell(QStringLiteral("input is no longer handled, as with an endless macro; exiting to give the devices back"));
  std::_Exit(status);
}

// Runs the event loop under a watchdog, which has less patience once a signal has asked the program to end.
int RunWatched() {
  std::atomic<int> bitten_status{kExitProblem};
  Watchdog watchdog(kLookMs, kPatience, [&bitten_status] { EndAtOnce(bitten_status); });
  SetInterruptionTaker([&](int number) {
    bitten_status = ExitStatusOfSignal(number);
    watchdog.Hurry();
    ExitBySignal(number);
  });
  const int status = QCoreApplication::exec();
  SetInterruptionTaker(ExitBySignal);
  return status;
}

// Returns the exit status.
int PlayToTheEnd(PlaySession* session, PlayControl* control) {
  session->ReadGamepads();
  const int status = RunWatched();
  session->End();
  const QString problem = control->Records()->SaveAtEnd();
  Tell(problem);
  return status == kExitDone && !problem.isEmpty() ? kExitProblem : status;
}

void Quit() { ExitLater(kExitDone); }

int PlayOn(PlayOptions options) {
  if (IsAnythingMissing(options)) return kExitProblem;
  const InterruptionWatch interruptions;
  ChooseSize(&options);
  DeviceFolder folder;
  const std::unique_ptr<GuestOutlet> outlet = MakeOutlet(options);
  PlaySession session(&folder, outlet.get(), options.settings);
  QObject::connect(&session, &PlaySession::Told, Tell);
  QObject::connect(&session, &PlaySession::StateChanged, TellState);
  const AppKeymaps apps(options.keymaps, AppKeymaps::UsualMemory());
  PlayControl control(&session, options.keymaps.isEmpty() ? nullptr : &apps, Quit);
  ControlSocket socket([&control](const QString& line) { return control.Do(line); });
  if (!Listen(options.socket, &socket)) return kExitProblem;
  QString problem = session.Start();
  if (!problem.isEmpty()) {
    Tell(problem);
    return kExitProblem;
  }
  problem = LoadKeymaps(options, &apps, &session, &control);
  if (!problem.isEmpty()) {
    Tell(problem);
    return kExitUsage;
  }
  return PlayToTheEnd(&session, &control);
}

int Run(const Invocation& invocation) {
  PlayOptions options;
  const QString problem = ReadOptions(ParseArguments(invocation.arguments, OptionsOf(kHelp)), &options);
  if (!problem.isEmpty()) return FailUsage(kName, problem);
  GoOnWithoutReader();
  SetCleanUp({});  // signals have a thread of their own, which must start before all others
  DoWithoutWindowSystem();
  if (!options.control.isEmpty() || options.is_list) {
    const QCoreApplication application(invocation.argc, invocation.argv);
    return options.is_list ? ListDevices(options) : AskForControl(options);
  }
  QCoreApplication::setEventDispatcher(new EpollDispatcher);
  const QGuiApplication application(invocation.argc, invocation.argv);  // the library reads the pointer from it
  return PlayOn(options);
}

}  // namespace

Subcommand PlayCommand() { return {"play", "plays a guest from this computer's keyboard and mouse", kHelp, Run}; }

}  // namespace tavi
