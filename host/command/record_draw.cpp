#include "host/command/record_draw.h"

#include <QFileInfo>

#include "host/command/command_line.h"
#include "host/picture/picture_file.h"
#include "host/picture/record_picture.h"
#include "host/record/record_file.h"
#include "host/record/record_paths.h"
#include "host/system/console.h"
#include "host/system/progress_line.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

const QString kCommand = QStringLiteral("record draw");

constexpr char kHelp[] =
    "Usage: tavi record draw -o PICTURE FILE\n"
    "\n"
    "Draws a record as a picture: the paths of its fingers, coloured by time.\n"
    "\n"
    "  -o PICTURE    the file to write, as SVG; \"-\" is standard output\n"
    "\n"
    "On a terminal, long work shows its progress. Ctrl+C ends it and leaves the picture\n"
    "unchanged.\n"
    "\n"
    "Exit status: 0 when the picture was written, 1 when it cannot be written, 2 when the\n"
    "record or the command line cannot be used.\n"
    "\n"
    "Example: tavi record draw -o walk.svg examples/records/walk.json\n";

const QString kOutput = QStringLiteral("-o");

QByteArray Draw(const QString& name, const RecordFile& record) {
  const ProgressLine progress(QStringLiteral("drawing ") + name);
  RecordInfo info;
  taviinputmanager::GetRecordInfo(name, &info);
  return DrawRecord({QFileInfo(name).fileName(), info, FollowContacts(record.root)});
}

// Returns the error in the command line, or an empty string.
QString ProblemOf(const ParsedArguments& parsed) {
  if (!parsed.error.isEmpty()) return parsed.error;
  if (parsed.positional.size() != 1) return QStringLiteral("one record is needed");
  const QString output = parsed.options.value(kOutput);
  if (output.isEmpty()) return QStringLiteral("-o FILE is missing");
  return SvgNameProblem(kOutput, output);
}

int Run(const Invocation& invocation) {
  const ParsedArguments parsed = ParseArguments(invocation.arguments, OptionsOf(kHelp));
  const QString problem = ProblemOf(parsed);
  if (!problem.isEmpty()) return FailUsage(kCommand, problem);
  const QString name = parsed.positional[0];
  const RecordFile record = ReadRecordFile(name);
  if (!IsRecordUsable(name, record)) return kExitUsage;
  return WritePicture(kCommand, parsed.options[kOutput], Draw(name, record));
}

}  // namespace

Subcommand RecordDrawCommand() { return {"record draw", "draws the paths of a record's fingers", kHelp, Run}; }

}  // namespace tavi
