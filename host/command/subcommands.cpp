#include "host/command/subcommands.h"

#include <QLoggingCategory>
#include <QVector>

#include "host/command/check_command.h"
#include "host/command/command_line.h"
#include "host/command/draw_command.h"
#include "host/command/guest_uinput_command.h"
#include "host/command/keys_command.h"
#include "host/command/play_command.h"
#include "host/command/record_draw.h"
#include "host/command/record_info.h"
#include "host/command/record_merge.h"
#include "host/command/record_play.h"
#include "host/command/simulate_command.h"
#include "host/command/window_command.h"
#include "host/system/console.h"
#include "host/system/program_arguments.h"

namespace tavi {

namespace {

const QString kHelpWord = QStringLiteral("help");

const QVector<Subcommand>& Subcommands() {
  static const QVector<Subcommand> all = {WindowCommand(),     PlayCommand(),       SimulateCommand(),
                                          CheckCommand(),      DrawCommand(),       KeysCommand(),
                                          RecordInfoCommand(), RecordPlayCommand(), RecordMergeCommand(),
                                          RecordDrawCommand(), GuestUinputCommand()};
  return all;
}

// Commands of two words that share the first.
struct Group {
  const char* name;
  const char* about;
};

constexpr Group kRecordGroup = {
    "record",
    "Works with records: files of what a guest got, to play it again.\n"
    "\"tavi simulate --record FILE\" makes one from a script, \"tavi window\" from play.\n"};

// The second words of a group, or the first words of all commands and groups.
QStringList WordsBehind(const QString& group) {
  QStringList words;
  const QString prefix = group.isEmpty() ? QString() : group + QLatin1Char(' ');
  for (const Subcommand& subcommand : Subcommands()) {
    const QString name = QLatin1String(subcommand.name);
    if (name.startsWith(prefix)) words += name.mid(prefix.size()).section(QLatin1Char(' '), 0, 0);
  }
  words.removeDuplicates();
  return words;
}

const Subcommand* FindSubcommand(const QString& name) {
  for (const Subcommand& subcommand : Subcommands()) {
    if (name == QLatin1String(subcommand.name)) return &subcommand;
  }
  return nullptr;
}

// A line for each command whose name starts like this.
QString CommandList(const QString& prefix) {
  QString list = QStringLiteral("\nCommands:\n");
  for (const Subcommand& subcommand : Subcommands()) {
    const QString name = QLatin1String(subcommand.name);
    if (!name.startsWith(prefix)) continue;
    list += QStringLiteral("  %1  %2\n").arg(name.mid(prefix.size()), -12).arg(QLatin1String(subcommand.summary));
  }
  return list;
}

int PrintOverview() {
  Print(QStringLiteral("Usage: tavi COMMAND [ARGUMENTS]\n"
                       "\n"
                       "Shows, plays, checks and draws keymaps, which define what the keys and the mouse of\n"
                       "this computer do on the screen of an Android guest. Plays, merges and draws\n"
                       "records.\n") +
        CommandList({}) +
        QStringLiteral("\n"
                       "  --help, -h  print this page; after a command, print the page of that command, as\n"
                       "              \"tavi help COMMAND\" does\n"
                       "  --version   print the version of the program\n"
                       "\n"
                       "Exit status: 0 when all went well, 1 when a command found a problem or could not\n"
                       "finish, 2 for a wrong command line or a file that cannot be used.\n"
                       "\n"
                       "Example: tavi check examples/keymaps/shooter.yaml\n"));
  return kExitDone;
}

int PrintGroup(const Group& group) {
  const QString name = QLatin1String(group.name);
  Print(QStringLiteral("Usage: tavi %1 COMMAND [ARGUMENTS]\n\n").arg(name) + QLatin1String(group.about) +
        CommandList(name + QLatin1Char(' ')) +
        QStringLiteral("\n\"tavi %1 COMMAND --help\" documents a command.\n"
                       "\n"
                       "Example: tavi %1 %2 --help\n")
            .arg(name, WordsBehind(name).first()));
  return kExitDone;
}

int PrintPage(const Subcommand& subcommand) {
  Print(QStringLiteral("tavi %1 - %2\n\n").arg(QLatin1String(subcommand.name), QLatin1String(subcommand.summary)) +
        QString::fromUtf8(subcommand.help));
  return kExitDone;
}

int RunSubcommand(const Subcommand& subcommand, const Invocation& invocation) {
  if (ParseArguments(invocation.arguments, {}).help) return PrintPage(subcommand);
  // The commands report a keymap's diagnostics themselves; the loader must not repeat them.
  QLoggingCategory::setFilterRules(QStringLiteral("tavi.keymap.warning=false"));
  return subcommand.run(invocation);
}

// "info, play, merge or draw"
QString Choice(QStringList words) {
  const QString last = words.takeLast();
  return words.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

int RunGroup(const Group& group, const Invocation& invocation) {
  const QString name = QLatin1String(group.name);
  const QString word = invocation.arguments.value(0);
  const Subcommand* subcommand = FindSubcommand(name + QLatin1Char(' ') + word);
  if (subcommand) return RunSubcommand(*subcommand, {invocation.argc, invocation.argv, invocation.arguments.mid(1)});
  if (ParseArguments(invocation.arguments, {}).help) return PrintGroup(group);
  const QStringList known = WordsBehind(name);
  if (word.isEmpty()) return FailUsage(name, QStringLiteral("expected %1").arg(Choice(known)));
  const QString error = QStringLiteral("expected %1, found \"%2\"").arg(Choice(known), word);
  return FailUsage(name, error + Suggestion(word, known));
}

int RunNamed(const QString& name, const Invocation& invocation) {
  if (const Subcommand* subcommand = FindSubcommand(name)) return RunSubcommand(*subcommand, invocation);
  if (name == QLatin1String(kRecordGroup.name)) return RunGroup(kRecordGroup, invocation);
  if (name.startsWith(QLatin1Char('-'))) {
    const QStringList known = {QStringLiteral("--help"), QStringLiteral("--version")};
    return FailUsage({}, QStringLiteral("unknown option \"%1\"").arg(name) + Suggestion(name, known));
  }
  const QStringList known = WordsBehind({}) << kHelpWord;
  return FailUsage({}, QStringLiteral("unknown command \"%1\"").arg(name) + Suggestion(name, known));
}

bool IsHelp(const QString& word) { return word == QLatin1String("--help") || word == QLatin1String("-h"); }

int RunWords(int& argc, char** argv) {
  QStringList words = ProgramArguments(argc, argv);
  if (words.isEmpty()) return FailUsage({}, QStringLiteral("a command is missing"));
  // "tavi help check" is "tavi check --help".
  if (words.first() == kHelpWord) words = words.mid(1) << QStringLiteral("--help");
  const QString name = words.takeFirst();
  if (IsHelp(name)) return PrintOverview();
  if (name == QLatin1String("--version")) {
    Print(QStringLiteral("tavi " TAVI_VERSION "\n"));
    return kExitDone;
  }
  return RunNamed(name, {argc, argv, words});
}

}  // namespace

int RunProgram(int& argc, char** argv) { return FinishOutput(RunWords(argc, argv)); }

}  // namespace tavi
