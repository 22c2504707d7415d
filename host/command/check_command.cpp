#include "host/command/check_command.h"

#include "host/command/command_line.h"
#include "host/session/keymap_report.h"
#include "host/system/console.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi check FILE...\n"
    "\n"
    "Reads keymap files and reports everything that is wrong with them, one diagnostic per\n"
    "line, in the form of a compiler: \"file:line:column: error: message\". A warning marks\n"
    "something that its author probably did not intend; the file can still be used. A file\n"
    "without diagnostics gets the line \"file: 12 items\". \"-\" is standard input.\n"
    "\n"
    "Exit status: 0 when no file has an error, 1 when one has, 2 for a wrong command\n"
    "line.\n"
    "\n"
    "Example: tavi check examples/keymaps/shooter.yaml\n";

bool TellAbout(const QString& name, const tavikeymapmanager::LoadResult& result) {
  Print(FormatDiagnostics(result));
  if (result.diagnostics.isEmpty()) Print(QStringLiteral("%1: %2\n").arg(name, ItemCountText(result)));
  return !result.HasErrors();
}

bool CheckFile(const QString& file) {
  if (file != QLatin1String(kStandardStream)) return TellAbout(file, tavikeymapmanager::ReadKeymapFile(file));
  const QString name = QStringLiteral("<stdin>");
  const QByteArray input =
      ReadStandardInput(tavikeymapmanager::kMostKeymapBytes + 1);  // enough to show that it is long
  return TellAbout(name, tavikeymapmanager::ReadKeymapText(input, name));
}

int Run(const Invocation& invocation) {
  const ParsedArguments arguments = ParseArguments(invocation.arguments, OptionsOf(kHelp));
  if (!arguments.error.isEmpty()) return FailUsage(QStringLiteral("check"), arguments.error);
  if (arguments.positional.isEmpty()) return FailUsage(QStringLiteral("check"), QStringLiteral("a file is missing"));
  if (arguments.positional.contains(QString())) {
    return FailUsage(QStringLiteral("check"), QStringLiteral("the name of a file is empty"));
  }
  bool all_good = true;
  for (const QString& file : arguments.positional) all_good = CheckFile(file) && all_good;
  return all_good ? kExitDone : kExitProblem;
}

}  // namespace

Subcommand CheckCommand() { return {"check", "reports what is wrong with keymap files", kHelp, Run}; }

}  // namespace tavi
