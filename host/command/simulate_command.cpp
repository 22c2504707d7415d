#include "host/command/simulate_command.h"

#include <cstdio>
#include <map>
#include <optional>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include "host/command/command_line.h"
#include "host/command/script_recording.h"
#include "host/picture/picture_file.h"
#include "host/picture/timeline_chart.h"
#include "host/picture/timeline_picture.h"
#include "host/session/keymap_report.h"
#include "host/session/keymap_source.h"
#include "host/simulation/script.h"
#include "host/simulation/script_player.h"
#include "host/simulation/simulated_host.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "host/system/console.h"
#include "host/system/plain_file.h"
#include "host/system/window_system.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi simulate [OPTIONS] KEYMAP SCRIPT\n"
    "\n"
    "Plays a script of input with a keymap and prints the result: every line for the guest,\n"
    "and after a \"!\" every call of the host, each with the time in milliseconds since the\n"
    "start. It does not wait: time is virtual. The same script gives the same output at\n"
    "every run.\n"
    "\n"
    "SCRIPT is a file, or \"-\" for standard input. It has one command per line, such as\n"
    "  down W; wait 100; up W\n"
    "  mouse down left 640,360\n"
    "Positions are pixels of a guest view of 1280 x 720.\n"
    "\n"
    "  --svg FILE       also draw the timeline as a picture: bars for what is held, a lane\n"
    "                   for each key and finger\n"
    "  --record FILE    also save what the guest got on display 1 as a record, for\n"
    "                   \"tavi record\" to play\n"
    "  --package NAME   the app that the keymap is loaded for and that the record names\n"
    "                   (com.example.game)\n"
    "\n"
    "Exit status: 0 when the script was played, 1 when there is no record to save or when\n"
    "it or the picture cannot be written, 2 when the script, the keymap or the command line\n"
    "cannot be used.\n"
    "\n"
    "Example: echo \"down Space; wait 50; up Space\" |\n"
    "           tavi simulate examples/keymaps/shooter.yaml -\n";

const QString kName = QStringLiteral("simulate");
const QString kSvg = QStringLiteral("--svg");
const QString kRecord = QStringLiteral("--record");
const QString kPackage = QStringLiteral("--package");

std::optional<QString> ReadText(const QString& name) {
  const bool is_standard_input = name == QLatin1String(kStandardStream);
  QFile file(name);
  const bool is_open = is_standard_input ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
  if (is_open) return QString::fromUtf8(file.readAll());
  const QString problem = NoFileProblem(name);
  PrintError(QStringLiteral("%1: cannot be read: %2\n").arg(name, problem.isEmpty() ? file.errorString() : problem));
  return std::nullopt;
}

bool IsLoad(const ScriptCommand& command) {
  return command.kind == ScriptCommand::Kind::kKeymap || command.kind == ScriptCommand::Kind::kJoymap;
}

// Files named in a script are relative to its folder.
void ResolveFiles(const QString& script_name, Script* script) {
  if (script_name == QLatin1String(kStandardStream)) return;
  const QDir folder = QFileInfo(script_name).dir();
  for (ScriptCommand& command : script->commands) {
    if (IsLoad(command) && !command.text.isEmpty()) command.text = QDir::cleanPath(folder.filePath(command.text));
  }
}

std::optional<Script> ReadScript(const QString& name) {
  const std::optional<QString> text = ReadText(name);
  if (!text) return std::nullopt;
  Script script = ParseScript(*text);
  const QString shown = name == QLatin1String(kStandardStream) ? QStringLiteral("<stdin>") : name;
  for (const ScriptError& error : script.errors) {
    PrintError(QStringLiteral("%1:%2:%3: error: ").arg(shown).arg(error.line).arg(error.column) + error.message +
               QLatin1Char('\n'));
  }
  if (!script.errors.isEmpty()) return std::nullopt;
  ResolveFiles(name, &script);
  return script;
}

// The keymaps of the simulation. Each is read once, and its diagnostics are printed first, because the library reports
// none. The simulation uses what was read, whatever happens to the file meanwhile.
class ReadKeymaps {
 public:
  // Returns whether it can be used.
  bool Read(const QString& path) {
    KeymapSource& source = sources_[path];
    source.Read(path);
    PrintError(FormatDiagnostics(source.LastRead()));
    return !source.LastRead().HasErrors();
  }
  // The same for all files that a script loads. From now on the script loads what was read.
  bool Read(Script* script) {
    bool all = true;
    for (ScriptCommand& command : script->commands) {
      if (!IsLoad(command)) continue;
      if (sources_.count(command.text) == 0) all = Read(command.text) && all;
      command.text = PathForUse(command.text);
    }
    return all;
  }
  QString PathForUse(const QString& path) { return sources_[path].PathForUse(); }

 private:
  std::map<QString, KeymapSource> sources_;
};

void TakeTimeline(SimulatedHost* host, TimelineChart* chart) {
  for (const TimelineEntry& entry : host->TakeTimeline()) {
    Print(FormatLine(entry));
    chart->AddEntry(entry);
  }
}

struct SimulateOptions {
  QString keymap;
  QString script;
  std::optional<QString> svg;      // the picture to draw, if any
  std::optional<QString> record;   // the record to save, if any
  std::optional<QString> package;  // instead of the player's
};

int DrawChart(const SimulateOptions& options, const TimelineChart& chart) {
  const bool is_standard_input = options.script == QLatin1String(kStandardStream);
  const QString script = is_standard_input ? QStringLiteral("Input") : QFileInfo(options.script).fileName();
  const QString title = QStringLiteral("%1 with %2").arg(script, QFileInfo(options.keymap).fileName());
  return WritePicture(kName, *options.svg, DrawTimeline(chart, title));
}

int Play(const Invocation& invocation, const SimulateOptions& options, const QString& keymap, const Script& script) {
  DoWithoutWindowSystem();  // virtual time needs no window system
  auto* clock = new VirtualEventDispatcher;
  QCoreApplication::setEventDispatcher(clock);
  const QGuiApplication application(invocation.argc, invocation.argv);
  SimulatedHost* host = SimulatedHost::GetInstance();
  host->Start([clock] { return clock->NowMs(); });
  ScriptPlayer player(clock, host);
  if (options.package) player.package = *options.package;
  player.LoadKeymap(keymap);
  clock->Settle();
  host->StartTimeline();
  const QString package = player.package;  // a script may change the player's rotation
  if (options.record) StartScriptRecording(package, player.display);
  const qint64 start_ms = clock->NowMs();
  TimelineChart chart;
  for (const ScriptCommand& command : script.commands) {
    chart.AddInput(clock->NowMs() - start_ms, command);
    player.Play(command);
    TakeTimeline(host, &chart);
  }
  chart.Finish(clock->NowMs() - start_ms);
  const int recorded = options.record ? SaveScriptRecording(package, *options.record) : kExitDone;
  const int drawn = options.svg ? DrawChart(options, chart) : kExitDone;
  return recorded == kExitDone ? drawn : recorded;
}

std::optional<QString> OptionOf(const ParsedArguments& arguments, const QString& name) {
  if (!arguments.options.contains(name)) return std::nullopt;
  return arguments.options[name];
}

// Returns the error in the names of the output files, or an empty string. Standard output is reserved for the timeline.
QString ProblemOf(const SimulateOptions& options) {
  if (options.svg && options.svg->isEmpty()) return QStringLiteral("the name of the picture is empty");
  if (options.record && options.record->isEmpty()) return QStringLiteral("the name of the record is empty");
  for (const std::optional<QString>& name : {options.svg, options.record}) {
    if (name.value_or(QString()) == QLatin1String(kStandardStream)) {
      return QStringLiteral("standard output gets the lines; pictures and records need a file");
    }
  }
  return SvgNameProblem(kSvg, options.svg.value_or(QString()));
}

int Run(const Invocation& invocation) {
  const ParsedArguments arguments = ParseArguments(invocation.arguments, OptionsOf(kHelp));
  if (!arguments.error.isEmpty()) return FailUsage(kName, arguments.error);
  if (arguments.positional.size() != 2) {
    return FailUsage(kName, QStringLiteral("a keymap and a script are needed"));
  }
  const SimulateOptions options{arguments.positional[0], arguments.positional[1], OptionOf(arguments, kSvg),
                                OptionOf(arguments, kRecord), OptionOf(arguments, kPackage)};
  const QString problem = ProblemOf(options);
  if (!problem.isEmpty()) return FailUsage(kName, problem);
  std::optional<Script> script = ReadScript(options.script);
  if (!script) return kExitUsage;
  ReadKeymaps keymaps;
  const bool is_first_usable = keymaps.Read(options.keymap);
  if (!keymaps.Read(&*script) || !is_first_usable) return kExitUsage;
  return Play(invocation, options, keymaps.PathForUse(options.keymap), *script);
}

}  // namespace

Subcommand SimulateCommand() {
  return {"simulate", "plays a script of input and prints what the guest would get", kHelp, Run};
}

}  // namespace tavi
