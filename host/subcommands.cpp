#include "host/subcommands.h"

#include <array>

#include <QLoggingCategory>

#include "host/check_command.h"
#include "host/command_line.h"
#include "host/draw_command.h"
#include "host/guest_uinput_command.h"
#include "host/record_command.h"
#include "host/simulate_command.h"
#include "host/window_command.h"

namespace tavi {

namespace {

const auto& Subcommands() {
  static const std::array<Subcommand, 6> all = {WindowCommand(), SimulateCommand(), RecordCommand(),
                                                CheckCommand(),  DrawCommand(),     GuestUinputCommand()};
  return all;
}

const Subcommand* FindSubcommand(const QString& name) {
  for (const Subcommand& subcommand : Subcommands()) {
    if (name == QLatin1String(subcommand.name)) return &subcommand;
  }
  return nullptr;
}

void PrintOverview() {
  Print(
      QStringLiteral("Usage: tavi COMMAND [ARGUMENTS]\n"
                     "\n"
                     "Shows, plays and checks keymaps: what the keys and the mouse of this computer do\n"
                     "on the screen of an Android guest. Plays, merges and draws records of it.\n"
                     "\n"
                     "Commands:\n"));
  for (const Subcommand& subcommand : Subcommands()) {
    Print(QStringLiteral("  %1 %2\n").arg(QLatin1String(subcommand.name), -12).arg(QLatin1String(subcommand.summary)));
  }
  Print(
      QStringLiteral("\n"
                     "  --help     this page, or behind a command the page of that command\n"
                     "  --version  the version of the program\n"
                     "\n"
                     "Example: tavi window examples/keymaps/shooter.yaml\n"));
}

int RunSubcommand(const Subcommand& subcommand, const Invocation& invocation) {
  if (ParseArguments(invocation.arguments, {}).help) {
    Print(QString::fromUtf8(subcommand.help));
    return kExitDone;
  }
  // The commands tell what is wrong with a keymap where it belongs; the loader need not do so again.
  QLoggingCategory::setFilterRules(QStringLiteral("tavi.keymap.warning=false"));
  return subcommand.run(invocation);
}

}  // namespace

int RunProgram(int& argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words += QString::fromLocal8Bit(argv[i]);
  if (words.isEmpty()) return FailUsage({}, QStringLiteral("a command is missing"));
  const QString name = words.takeFirst();
  if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
    PrintOverview();
    return kExitDone;
  }
  if (name == QLatin1String("--version")) {
    Print(QStringLiteral("tavi " TAVI_VERSION "\n"));
    return kExitDone;
  }
  const Subcommand* subcommand = FindSubcommand(name);
  if (subcommand) return RunSubcommand(*subcommand, {argc, argv, words});
  const bool is_option = name.startsWith(QLatin1Char('-'));
  return FailUsage(
      {}, (is_option ? QStringLiteral("unknown option \"%1\"") : QStringLiteral("unknown command \"%1\"")).arg(name));
}

}  // namespace tavi
