#include "host/command/guest_uinput_command.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

#include <QFile>

#include "host/command/command_line.h"
#include "host/system/console.h"
#include "host/uinput/device_set.h"
#include "host/uinput/guest_player.h"

namespace tavi {

namespace {

constexpr char kName[] = "guest-uinput";
constexpr char kHelp[] =
    "Usage: tavi guest-uinput [OPTIONS]\n"
    "\n"
    "Takes the place of the guest: reads the lines that a guest is sent from standard\n"
    "input and plays them on input devices of this computer's kernel, made through\n"
    "/dev/uinput: a touch screen, a keyboard, a pointer, a gamepad and a touchpad. It\n"
    "tells where they are and keeps them until the lines end. The computer's own\n"
    "desktop takes what they do for its user's doing.\n"
    "\n"
    "  --input FILE   reads a file or a named pipe instead\n"
    "  --size WxH     the size of the touch surface in pixels, each side from 1 to 16384\n"
    "                 (1280x720)\n"
    "  --display N    only the lines for display N of the guest, a whole number, and texts\n"
    "                 (all displays)\n"
    "  --timeline     the lines are what \"tavi simulate\" prints, and each is played\n"
    "                 at its time\n"
    "  --dry-run      makes no device and does not wait: prints the kernel's events,\n"
    "                 such as \"screen EV_ABS ABS_MT_SLOT 11\"\n"
    "\n"
    "A line that is not understood or is longer than 64 KiB, and characters of a text\n"
    "that no key of a US keyboard types, are told on standard error, and the rest is\n"
    "played.\n"
    "docs/guest-protocol.md tells the lines.\n"
    "\n"
    "Exit status: 0 when every line was played, 1 when one was not, 2 when /dev/uinput\n"
    "or the command line cannot be used.\n"
    "\n"
    "Example: echo \"down Space; wait 50; up Space\" |\n"
    "           tavi simulate examples/keymaps/shooter.yaml - |\n"
    "           tavi guest-uinput --timeline --dry-run\n";

struct Options {
  QString input;  // empty: standard input
  bool is_dry_run = false;
  GuestPlayerSettings player;
  QString error;  // what is wrong; empty when nothing is
};

Options ReadOptions(const ParsedArguments& arguments) {
  Options result;
  result.error = arguments.error;
  if (!result.error.isEmpty()) return result;
  if (!arguments.positional.isEmpty()) {
    result.error = QStringLiteral("\"%1\" is no option").arg(arguments.positional.first());
  }
  const QMap<QString, QString>& given = arguments.options;
  result.input = given.value(QStringLiteral("--input"));
  result.is_dry_run = given.contains(QStringLiteral("--dry-run"));
  result.player.is_timeline = given.contains(QStringLiteral("--timeline"));
  const QString problem = TakeSize(arguments.Find(QStringLiteral("--size")), &result.player.surface);
  if (!problem.isEmpty()) result.error = problem;
  if (const auto display = given.find(QStringLiteral("--display")); display != given.end()) {
    bool is_number = false;
    result.player.display = display->toInt(&is_number);
    if (!is_number) result.error = QStringLiteral("--display needs a number, not \"%1\"").arg(*display);
  }
  return result;
}

QString PrintEvents(const KernelEvents& events) {
  for (const KernelEvent& event : events) Print(KernelEventText(event) + QLatin1Char('\n'));
  return {};
}

GuestPlayer::Outlets MakeOutlets(const Options& options, DeviceSet* devices) {
  GuestPlayer::Outlets outlets;
  outlets.problem = [](const QString& text) { PrintError(QStringLiteral("tavi guest-uinput: %1\n").arg(text)); };
  outlets.events = PrintEvents;
  outlets.wait = [](int /*ms*/) {};
  if (options.is_dry_run) return outlets;
  outlets.events = [devices](const KernelEvents& events) { return devices->Write(events); };
  outlets.wait = [start = std::chrono::steady_clock::now()](int ms) {
    std::this_thread::sleep_until(start + std::chrono::milliseconds(ms));
  };
  return outlets;
}

// Each line is played as soon as it is there, so nothing may wait for more to come.
bool PlayAll(int file, GuestPlayer* player) {
  GuestStream stream;
  char buffer[4096];
  for (;;) {
    const ssize_t count = ::read(file, buffer, sizeof(buffer));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) {
      if (const auto line = stream.Last()) player->Play(*line);
      return count == 0;
    }
    stream.Append(QByteArray(buffer, static_cast<int>(count)));
    while (const auto line = stream.Next()) player->Play(*line);
    FlushOutput();
  }
}

int FailReading(const QString& name) {
  PrintError(QStringLiteral("%1: cannot be read: %2\n").arg(name, qt_error_string(errno)));
  return kExitUsage;
}

// The devices are there before a named pipe has a writer, so that whoever reads them can be, too.
int Play(const Options& options) {
  DeviceSet devices;
  if (!options.is_dry_run) {
    const QString error = devices.Open(options.player.surface);
    if (!error.isEmpty()) {
      PrintError(QStringLiteral("tavi guest-uinput: %1. --dry-run does without.\n").arg(error));
      return kExitUsage;
    }
    for (const QString& place : devices.Places()) Print(place + QLatin1Char('\n'));
    FlushOutput();
  }
  const bool is_named = !options.input.isEmpty();
  const int file = is_named ? ::open(QFile::encodeName(options.input).constData(), O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
  if (file < 0) return FailReading(options.input);
  GuestPlayer player(options.player, MakeOutlets(options, &devices));
  const bool is_read = PlayAll(file, &player);
  if (!is_read) FailReading(is_named ? options.input : QStringLiteral("<stdin>"));
  if (is_named) ::close(file);
  return is_read && !player.had_problem() ? kExitDone : kExitProblem;
}

int Run(const Invocation& invocation) {
  const Options options = ReadOptions(ParseArguments(invocation.arguments, OptionsOf(kHelp)));
  if (!options.error.isEmpty()) return FailUsage(QLatin1String(kName), options.error);
  return Play(options);
}

}  // namespace

Subcommand GuestUinputCommand() { return {kName, "plays guest lines on kernel input devices", kHelp, Run}; }

}  // namespace tavi
