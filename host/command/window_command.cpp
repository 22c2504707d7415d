#include "host/command/window_command.h"

#include <optional>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QFileInfo>
#include <QTimer>

#include "host/command/command_line.h"
#include "host/command/guest_option.h"
#include "host/look/theme.h"
#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_targets.h"
#include "host/picture/picture_file.h"
#include "host/session/live_host.h"
#include "host/system/console.h"
#include "host/system/plain_file.h"
#include "host/system/terminal.h"
#include "host/system/whole_file.h"
#include "host/system/window_system.h"
#include "host/window/main_window.h"
#include "host/window/mirror_label.h"
#include "host/window/records/record_bar.h"
#include "host/window/target_button.h"
#include "host/window/view/guest_display.h"
#include "host/window/window_memory.h"
#include "qt/high_dpi.h"
#include "qt/numbers.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi window [OPTIONS] [KEYMAP]\n"
    "\n"
    "Opens a window in place of a guest's screen and applies the keymap to its keys, mouse,\n"
    "wheel and touches. The window draws the fingers, keys and text that the guest would\n"
    "get, and lists the lines. When you save the keymap, it is reloaded at once. Without\n"
    "KEYMAP the window uses the last one, or asks for one. \"Edit\" changes the keymap on the\n"
    "screen. The window also remembers its size, its docks, and the options from --size to\n"
    "--controls-key.\n"
    "\n"
    "  --joystick FILE  the gamepad keymap, also reloaded when you save it; without it,\n"
    "                   gamepads pass through to the guest\n"
    "  --size WxH       the guest's display in pixels, each side from 1 to 16384; \"view\"\n"
    "                   makes it as large as it is shown (1280x720)\n"
    "  --rotation DEG   the rotation of the display that the host reports: 0, 90, 180, 270\n"
    "  --pixel-ratio X  how many pixels of the view the host reports for one pixel of the\n"
    "                   guest's display (1); other values show which positions go wrong\n"
    "  --background PICTURE\n"
    "                   a picture (PNG, JPEG) in place of the guest's screen\n"
    "  --look LOOK      the colours of the window: light, dark, or desktop for those of the\n"
    "                   desktop (desktop)\n"
    "  --pause-key KEY  the key that switches the mapping off, so that all input passes\n"
    "                   through to the guest, and on again (F12)\n"
    "  --panic-key KEY  the key that lifts every finger and key of the guest, ends replays\n"
    "                   and macros, and releases the mouse (Ctrl+Alt+Backspace)\n"
    "  --controls-key KEY\n"
    "                   the key that moves the focus from the guest to the controls of the\n"
    "                   window; there Tab moves on and Escape goes back (Ctrl+Alt+Enter)\n"
    "  --paused         start with the mapping off\n"
    "  --fresh          start without the remembered size, docks, keymap and options, and\n"
    "                   remember nothing\n"
    "  --events         list each host event, what it matched and what was sent\n"
    "  --record FILE    record what the guest gets, and save it when the window is closed;\n"
    "                   if it cannot be saved, it is kept until you choose to drop it\n"
    "  --replay FILE    play this record at once\n"
    "  --second-view    play records on their own display\n"
    "  --guest TARGET   also send the lines to a guest: to the standard input of a command\n"
    "                   (exec:COMMAND), a socket file (unix:PATH), a port of this machine\n"
    "                   (tcp:HOST:PORT) or input devices of its kernel (uinput); repeat it\n"
    "                   for several guests\n"
    "  --allow-remote   let tcp: connect to other machines, although anyone on the network\n"
    "                   path can read what you type\n"
    "  --listen NAME    let your other instances send their lines to this one; NAME is a\n"
    "                   word of letters, digits, - and _\n"
    "  --mirror NAMES   also send the guest's lines to the instances that listen under\n"
    "                   these names, separated by commas\n"
    "  --picture FILE   save a picture of the window (PNG) and exit; \"-\" is standard output\n"
    "  --after MS       when to save it, in milliseconds from the start, 0 or more (1000)\n"
    "\n"
    "KEY is a key as keymaps name it, optionally after Ctrl+, Alt+, Shift+ or Meta+. The\n"
    "window keeps these keys: no keymap gets them.\n"
    "\n"
    "When a signal ends it (Ctrl+C, SIGTERM, SIGHUP), the window lifts what is down, saves\n"
    "the recording, and keeps unsaved edits in a file that it names.\n"
    "\n"
    "Exit status: 0 when the window was closed, 1 when the picture or the recording could\n"
    "not be saved or the name to listen under is taken, 2 for a wrong command line or\n"
    "without a display to open a window on, 128 plus the signal's number after a signal.\n"
    "\n"
    "Example: tavi window examples/keymaps/shooter.yaml\n";

const QString kName = QStringLiteral("window");

const QString kJoystick = QStringLiteral("--joystick");
const QString kRotation = QStringLiteral("--rotation");
const QString kPixelRatio = QStringLiteral("--pixel-ratio");
const QString kBackground = QStringLiteral("--background");
const QString kLook = QStringLiteral("--look");
const QString kPauseKey = QStringLiteral("--pause-key");
const QString kPanicKey = QStringLiteral("--panic-key");
const QString kControlsKey = QStringLiteral("--controls-key");
const QString kPaused = QStringLiteral("--paused");
const QString kFresh = QStringLiteral("--fresh");
const QString kEvents = QStringLiteral("--events");
const QString kRecord = QStringLiteral("--record");
const QString kReplay = QStringLiteral("--replay");
const QString kSecondView = QStringLiteral("--second-view");
const QString kListen = QStringLiteral("--listen");
const QString kMirror = QStringLiteral("--mirror");
const QString kPicture = QStringLiteral("--picture");
const QString kAfter = QStringLiteral("--after");

constexpr int kDefaultAfterMs = 1000;
constexpr double kLeastPixelRatio = 0.25;
constexpr double kMostPixelRatio = 8;

struct WindowOptions {
  QString keymap;                   // empty: ask
  QString joystick_keymap;          // empty: none
  std::optional<QSize> guest_size;  // an empty size: as large as the view
  int rotation = 0;
  double pixel_ratio = 1;
  QString background;  // empty: none
  theme::Look look = theme::Look::kDesktop;
  KeyCombination pause_key;
  KeyCombination panic_key;
  KeyCombination controls_key;
  bool is_paused = false;
  bool is_fresh = false;
  bool shows_events = false;
  QString record;  // empty: none
  QString replay;  // empty: none
  bool has_second_view = false;
  QString listen;  // empty: does not listen
  QStringList mirror;
  QVector<TargetAddress> targets;
  QString picture;  // empty: none
  int after_ms = kDefaultAfterMs;
};

// Each of these returns the error, or an empty string.
QString ReadKey(const QString& option, const ParsedArguments& arguments, const char* usual, KeyCombination* key) {
  const QString name = arguments.options.value(option, QLatin1String(usual));
  const QString problem = ParseKeyCombination(name, key);
  return problem.isEmpty() ? problem : QStringLiteral("%1: %2").arg(option, problem);
}

QString ReadKeys(const ParsedArguments& arguments, WindowOptions* options) {
  QString problem = ReadKey(kPauseKey, arguments, MainWindow::kPauseKey, &options->pause_key);
  if (problem.isEmpty()) problem = ReadKey(kPanicKey, arguments, MainWindow::kPanicKey, &options->panic_key);
  if (problem.isEmpty()) problem = ReadKey(kControlsKey, arguments, MainWindow::kControlsKey, &options->controls_key);
  if (!problem.isEmpty()) return problem;
  const QVector<QPair<QString, int>> keys{{kPauseKey, options->pause_key.scancode},
                                          {kPanicKey, options->panic_key.scancode},
                                          {kControlsKey, options->controls_key.scancode}};
  for (int i = 0; i < keys.size(); ++i) {
    for (int j = 0; j < i; ++j) {
      if (keys[i].second == keys[j].second)
        return QStringLiteral("%1 and %2 use the same key").arg(keys[j].first, keys[i].first);
    }
  }
  return {};
}

QString ReadDisplay(const ParsedArguments& arguments, WindowOptions* options) {
  if (const std::optional<GivenArgument> size = FindSize(arguments)) {
    options->guest_size = QSize();
    const bool is_view = size->value == QLatin1String("view");
    const QString problem = is_view ? QString() : TakeSize(size, &*options->guest_size);
    if (!problem.isEmpty()) return problem;
  }
  const QString rotation = arguments.options.value(kRotation, QStringLiteral("0"));
  if (!QStringList{"0", "90", "180", "270"}.contains(rotation)) {
    return QStringLiteral("%1 needs 0, 90, 180 or 270, not \"%2\"").arg(kRotation, rotation);
  }
  options->rotation = rotation.toInt();
  const QString ratio = arguments.options.value(kPixelRatio, QStringLiteral("1"));
  options->pixel_ratio = ParseFactor(ratio).value_or(0);
  if (options->pixel_ratio < kLeastPixelRatio || options->pixel_ratio > kMostPixelRatio) {
    return QStringLiteral("%1 needs a number from %2 to %3, not \"%4\"")
        .arg(kPixelRatio)
        .arg(kLeastPixelRatio)
        .arg(kMostPixelRatio)
        .arg(ratio);
  }
  return {};
}

QString ReadMirrors(const ParsedArguments& arguments, WindowOptions* options) {
  options->listen = arguments.options.value(kListen);
  options->mirror = arguments.options.value(kMirror).split(QLatin1Char(','), Qt::SkipEmptyParts);
  const QString listening = arguments.options.contains(kListen) ? MirrorNameProblem(options->listen) : QString();
  if (!listening.isEmpty()) return QStringLiteral("%1: %2").arg(kListen, listening);
  for (const QString& name : std::as_const(options->mirror)) {
    const QString problem = MirrorNameProblem(name);
    if (!problem.isEmpty()) return QStringLiteral("%1: %2").arg(kMirror, problem);
  }
  return {};
}

QString FileProblem(const QString& file) {
  if (file.isEmpty() || QFileInfo(file).isFile()) return {};
  const QString problem = NoFileProblem(file);
  return QStringLiteral("%1: %2").arg(problem.isEmpty() ? QStringLiteral("no such file") : problem, file);
}

QString ReadOptions(const ParsedArguments& arguments, WindowOptions* options) {
  if (!arguments.error.isEmpty()) return arguments.error;
  if (arguments.positional.size() > 1) return QStringLiteral("more than one keymap");
  options->keymap = arguments.positional.value(0);
  options->joystick_keymap = arguments.options.value(kJoystick);
  options->record = arguments.options.value(kRecord);
  options->replay = arguments.options.value(kReplay);
  options->has_second_view = arguments.options.contains(kSecondView);
  options->background = arguments.options.value(kBackground);
  for (const QString& file : {options->keymap, options->joystick_keymap, options->replay, options->background}) {
    const QString problem = FileProblem(file);
    if (!problem.isEmpty()) return problem;
  }
  QString problem = ReadMirrors(arguments, options);
  if (problem.isEmpty()) problem = TakeTargets(arguments, &options->targets);
  if (problem.isEmpty()) problem = ReadDisplay(arguments, options);
  if (!problem.isEmpty()) return problem;
  options->picture = arguments.options.value(kPicture);
  bool is_number = true;
  if (arguments.options.contains(kAfter)) options->after_ms = qt::ToInt(arguments.options[kAfter], &is_number);
  if (!is_number || options->after_ms < 0) return QStringLiteral("%1 needs a time in milliseconds").arg(kAfter);
  if (arguments.options.contains(kAfter) && options->picture.isEmpty()) {
    return QStringLiteral("%1 needs %2").arg(kAfter, kPicture);
  }
  const QString look = arguments.options.value(kLook, theme::NameOf(theme::Look::kDesktop));
  if (!theme::ParseLook(look, &options->look)) {
    return QStringLiteral("%1 needs light, dark or desktop, not \"%2\"").arg(kLook, look);
  }
  options->is_paused = arguments.options.contains(kPaused);
  options->is_fresh = arguments.options.contains(kFresh);
  options->shows_events = arguments.options.contains(kEvents);
  return ReadKeys(arguments, options);
}

void Tell(const QString& text) { PrintError(QStringLiteral("tavi window: %1\n").arg(text)); }

// Returns whether everything could be saved.
bool Leave(MainWindow* window) {
  const QStringList news = window->LeaveWithoutAsking();
  for (const QString& text : news) Tell(text);
  return news.isEmpty();
}

void SavePictureAndLeave(MainWindow* window, const QString& file) {
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  window->grab().save(&png, "PNG");
  const int written = WritePicture(kName, file, png.data());
  const bool is_all_saved = Leave(window);
  QCoreApplication::exit(is_all_saved ? written : kExitProblem);
}

// While it exists, a signal that ends the program makes it quit the event loop and clean up.
class InterruptionWatch {
 public:
  explicit InterruptionWatch(MainWindow* window) {
    SetInterruptionTaker([window](int number) {
      QMetaObject::invokeMethod(
          window, [window, number] { End(window, number); }, Qt::QueuedConnection);
    });
  }
  ~InterruptionWatch() { SetInterruptionTaker({}); }
  InterruptionWatch(const InterruptionWatch&) = delete;
  InterruptionWatch& operator=(const InterruptionWatch&) = delete;

 private:
  static void End(MainWindow* window, int number) {
    Leave(window);
    QCoreApplication::exit(ExitStatusOfSignal(number));
  }
};

// However the window ends, nothing is down afterwards in the guests and instances that got its lines.
class TargetsInUse {
 public:
  TargetsInUse() = default;
  ~TargetsInUse() {
    LiveHost::GetInstance()->Targets()->Close();
    MirrorTargets::GetInstance()->Finish();
  }
  TargetsInUse(const TargetsInUse&) = delete;
  TargetsInUse& operator=(const TargetsInUse&) = delete;
};

void StartRecords(const WindowOptions& options, RecordBar* records) {
  if (!options.record.isEmpty()) {
    records->SetTarget(options.record);
    records->ToggleRecording();
  }
  if (options.has_second_view) records->SecondView()->trigger();
  if (!options.replay.isEmpty() && records->OpenRecord(options.replay)) records->TogglePlaying();
}

// `news` are messages for the user about the start.
int ShowWindow(const WindowOptions& options, const QStringList& news, WindowMemory* memory) {
  theme::Apply(qApp, options.look);
  const TargetsInUse targets;  // outlives the window, which releases what is down at its end
  MainWindow window;
  memory->Restore(&window);
  if (options.guest_size) window.Display()->SetSize(*options.guest_size);
  window.Display()->SetRotation(options.rotation);
  window.Display()->SetPixelRatio(options.pixel_ratio);
  const QString background_problem = window.Display()->SetBackground(options.background);
  if (!background_problem.isEmpty()) {
    Tell(background_problem);
    return kExitUsage;
  }
  if (!options.record.isEmpty()) {
    const QString problem = TryWholeFile(options.record);
    if (!problem.isEmpty()) {
      Tell(QStringLiteral("cannot write %1: %2").arg(options.record, problem));
      return kExitProblem;
    }
  }
  window.SetPauseKey(options.pause_key);
  window.SetPanicKey(options.panic_key);
  window.SetControlsKey(options.controls_key);
  if (options.is_paused) window.PauseMapping();
  window.LoadKeymap(options.keymap);
  if (!options.joystick_keymap.isEmpty()) window.LoadJoystickKeymap(options.joystick_keymap);
  if (!options.listen.isEmpty()) {
    const QString problem = window.Mirrors()->ListenAs(options.listen);
    if (!problem.isEmpty()) {
      Tell(QStringLiteral("cannot listen as %1: %2").arg(options.listen, problem));
      return kExitProblem;
    }
  }
  window.Mirrors()->MirrorTo(options.mirror);
  for (const TargetAddress& target : options.targets) window.Targets()->Add(target);
  StartRecords(options, window.Records());
  window.ReadGamepads();
  window.ClearLog();  // the resets that a guest gets first are no news
  window.show();
  if (!news.isEmpty()) window.Tell(news.join(QStringLiteral("; ")), true);
  if (options.shows_events) window.ShowEvents();
  window.activateWindow();
  const InterruptionWatch interruptions(&window);
  if (!options.picture.isEmpty()) {
    QTimer::singleShot(options.after_ms, &window, [&] { SavePictureAndLeave(&window, options.picture); });
  } else if (options.keymap.isEmpty()) {
    QTimer::singleShot(0, &window, &MainWindow::OpenKeymap);
  }
  const int status = QApplication::exec();
  if (options.picture.isEmpty()) memory->Save(window);
  return status;
}

using KeptOptions = QMap<QString, QString>;

// The command line, with stored values for the options that it omits.
ParsedArguments Completed(ParsedArguments arguments, const KeptOptions& kept) {
  const bool has_keymap = !arguments.positional.isEmpty();
  for (auto option = kept.begin(); option != kept.end(); ++option) {
    const bool is_of_the_keymap = option.key() == kJoystick;
    if (arguments.options.contains(option.key()) || (is_of_the_keymap && has_keymap)) continue;
    arguments.options.insert(option.key(), option.value());
    arguments.in_order.append({option.key(), option.value()});
  }
  return arguments;
}

QString ProblemWith(const ParsedArguments& given, const KeptOptions& kept) {
  WindowOptions options;
  return ReadOptions(Completed(given, kept), &options);
}

QString NewsOf(const QString& option, const KeptOptions& kept, const QString& problem) {
  return QStringLiteral("%1 %2 from the last session is ignored: %3").arg(option, kept[option], problem);
}

// The stored options that do not conflict with the command line. An option that does is left out and reported in
// `news`; if no single option is the cause, each one that conflicts with those before it.
KeptOptions UsableOf(const ParsedArguments& given, const KeptOptions& kept, QStringList* news) {
  const QString problem = ProblemWith(given, kept);
  if (problem.isEmpty()) return kept;
  for (const QString& option : kept.keys()) {
    KeptOptions others = kept;
    others.remove(option);
    if (!ProblemWith(given, others).isEmpty()) continue;
    news->append(NewsOf(option, kept, problem));
    return others;
  }
  KeptOptions usable;
  for (const QString& option : kept.keys()) {
    usable.insert(option, kept[option]);
    const QString own_problem = ProblemWith(given, usable);
    if (own_problem.isEmpty()) continue;
    usable.remove(option);
    news->append(NewsOf(option, kept, own_problem));
  }
  return usable;
}

// What the command line leaves open is restored from the last session.
WindowOptions Remember(const ParsedArguments& given, const WindowMemory& memory, QStringList* news) {
  ParsedArguments arguments = Completed(given, UsableOf(given, memory.Options(), news));
  if (arguments.positional.isEmpty() && !memory.Keymap().isEmpty()) arguments.positional += memory.Keymap();
  WindowOptions options;
  ReadOptions(arguments, &options);
  return options;
}

int Run(const Invocation& invocation) {
  if (!HasWindowSystem(invocation.arguments)) {
    PrintError(
        QStringLiteral("tavi window: there is no display to open a window on.\n"
                       "\"tavi simulate\" plays keymaps without one.\n"));
    return kExitUsage;
  }
  GoOnWithoutReader();
  SetCleanUp({});  // signals have a thread of their own, which must start before those of the window system
  qt::FollowScreens();
  QApplication application(invocation.argc, invocation.argv);
  // QApplication has already removed Qt's own options, such as -platform.
  const ParsedArguments arguments = ParseArguments(QApplication::arguments().mid(2), OptionsOf(kHelp));
  WindowOptions options;
  const QString problem = ReadOptions(arguments, &options);
  if (!problem.isEmpty()) return FailUsage(kName, problem);
  WindowMemory memory(options.is_fresh ? QString() : WindowMemory::UsualFile());
  QStringList news;
  options = Remember(arguments, memory, &news);
  for (const QString& text : std::as_const(news)) Tell(text);
  return ShowWindow(options, news, &memory);
}

}  // namespace

Subcommand WindowCommand() { return {"window", "opens a window to try a keymap", kHelp, Run}; }

}  // namespace tavi
