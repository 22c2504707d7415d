#include "host/window_command.h"

#include <optional>

#include <QApplication>
#include <QFileInfo>
#include <QTimer>

#include "host/command_line.h"
#include "host/window/main_window.h"
#include "host/window/theme.h"
#include "host/window_system.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi window [OPTIONS] [KEYMAP]\n"
    "\n"
    "Opens a window in the place of a guest's screen. Its keys, mouse, wheel and\n"
    "touches go through the keymap; fingers, keys and text that the guest would get\n"
    "are drawn, and the lines that say so are listed. A keymap that is saved meanwhile\n"
    "is read again at once. Without KEYMAP the window asks for one.\n"
    "\n"
    "  --joystick FILE  the keymap of gamepads, which is read again as well; without it, a\n"
    "                   gamepad reaches the guest as one\n"
    "  --guest SIZE     the guest's display, such as 1920x1080; \"view\" for one as large\n"
    "                   as it is shown (1280x720)\n"
    "  --picture FILE   save a picture of the window (PNG) and leave\n"
    "  --after MS       time until then in milliseconds (1000)\n"
    "\n"
    "Exit status: 0 when the window was closed, 1 when the picture could not be saved,\n"
    "2 for a wrong command line.\n"
    "\n"
    "Example: tavi window examples/keymaps/shooter.yaml\n";

const QString kJoystick = QStringLiteral("--joystick");
const QString kGuest = QStringLiteral("--guest");
const QString kPicture = QStringLiteral("--picture");
const QString kAfter = QStringLiteral("--after");

constexpr int kDefaultAfterMs = 1000;

struct WindowOptions {
  QString keymap;                   // empty: ask
  QString joystick_keymap;          // empty: none
  std::optional<QSize> guest_size;  // an empty size: as large as the view
  QString picture;                  // empty: none
  int after_ms = kDefaultAfterMs;
};

// Returns what is wrong, or nothing.
QString ReadOptions(const ParsedArguments& arguments, WindowOptions* options) {
  if (!arguments.error.isEmpty()) return arguments.error;
  if (arguments.positional.size() > 1) return QStringLiteral("more than one keymap");
  options->keymap = arguments.positional.value(0);
  options->joystick_keymap = arguments.options.value(kJoystick);
  for (const QString& file : {options->keymap, options->joystick_keymap}) {
    if (!file.isEmpty() && !QFileInfo(file).isFile()) return QStringLiteral("no such file: %1").arg(file);
  }
  if (arguments.options.contains(kGuest)) {
    const QString guest = arguments.options[kGuest];
    options->guest_size = ParseSize(guest);
    if (options->guest_size->isEmpty() && guest != QLatin1String("view")) {
      return QStringLiteral("%1 needs a size such as 1280x720, not \"%2\"").arg(kGuest, guest);
    }
  }
  options->picture = arguments.options.value(kPicture);
  bool is_number = true;
  if (arguments.options.contains(kAfter)) options->after_ms = arguments.options[kAfter].toInt(&is_number);
  if (!is_number || options->after_ms < 0) return QStringLiteral("%1 needs a time in milliseconds").arg(kAfter);
  if (arguments.options.contains(kAfter) && options->picture.isEmpty()) {
    return QStringLiteral("%1 goes with %2").arg(kAfter, kPicture);
  }
  return {};
}

void SavePictureAndLeave(MainWindow* window, const QString& file) {
  const bool is_saved = window->grab().save(file, "PNG");
  if (!is_saved) PrintError(QStringLiteral("tavi window: cannot write %1\n").arg(file));
  QCoreApplication::exit(is_saved ? kExitDone : kExitProblem);
}

int ShowWindow(const WindowOptions& options) {
  MainWindow window;
  if (options.guest_size) window.SetGuestSize(*options.guest_size);
  window.LoadKeymap(options.keymap);
  if (!options.joystick_keymap.isEmpty()) window.LoadJoystickKeymap(options.joystick_keymap);
  window.ReadGamepads();
  window.show();
  window.activateWindow();
  if (!options.picture.isEmpty()) {
    QTimer::singleShot(options.after_ms, &window, [&] { SavePictureAndLeave(&window, options.picture); });
  } else if (options.keymap.isEmpty()) {
    QTimer::singleShot(0, &window, &MainWindow::OpenKeymap);
  }
  return QApplication::exec();
}

int Run(const Invocation& invocation) {
  if (!HasWindowSystem(invocation.arguments)) {
    PrintError(
        QStringLiteral("tavi window: there is no display to open a window on.\n"
                       "\"tavi simulate\" plays keymaps without one.\n"));
    return kExitUsage;
  }
  QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  QApplication application(invocation.argc, invocation.argv);
  theme::Apply(&application);
  // The application has taken out what is Qt's own, such as -platform.
  const ParsedArguments arguments = ParseArguments(
      QApplication::arguments().mid(2), {{kJoystick, true}, {kGuest, true}, {kPicture, true}, {kAfter, true}});
  WindowOptions options;
  const QString problem = ReadOptions(arguments, &options);
  if (!problem.isEmpty()) return FailUsage(QStringLiteral("window"), problem);
  return ShowWindow(options);
}

}  // namespace

Subcommand WindowCommand() { return {"window", "opens a window to try a keymap out in", kHelp, Run}; }

}  // namespace tavi
