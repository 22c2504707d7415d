#include "host/record_command.h"

#include "host/command_line.h"
#include "host/record/record_draw.h"
#include "host/record/record_info.h"
#include "host/record/record_merge.h"
#include "host/record/record_play.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi record info FILE...\n"
    "       tavi record play [OPTIONS] FILE\n"
    "       tavi record merge -o TARGET FILE [OPTIONS] [FILE [OPTIONS]]...\n"
    "       tavi record draw -o PICTURE FILE\n"
    "\n"
    "Works with records: files that hold what a guest got, to be played again.\n"
    "\"tavi simulate --record FILE\" makes one from a script.\n"
    "\n"
    "info tells what is in a file, how long it plays, and what of it a replay drops.\n"
    "\n"
    "play prints every line for the guest, and after a \"!\" every call of the host, each\n"
    "with the time in milliseconds since the start. Time is not waited for.\n"
    "  --speed X        that many times as fast\n"
    "  --emulation      fingers miss their points a little, at random\n"
    "  --guest SIZE     the guest's display, such as 1920x1080 (as it was recorded)\n"
    "  --live           wait, and print each line as it falls due\n"
    "\n"
    "merge writes one record that plays the others in turn. Options stand behind the\n"
    "record that they are about:\n"
    "  --times N        play it N times (1)\n"
    "  --delay MS       pause between those times, in milliseconds (0)\n"
    "  --speed X        play it that many times as fast (1)\n"
    "  --gap MS         pause before the next record, shortened by this one's speed (0)\n"
    "\n"
    "draw writes a picture (SVG) of the ways that the fingers take.\n"
    "\n"
    "A name that begins with a dash is written ./-name, or stands behind \"--\".\n"
    "\n"
    "Exit status: 0 when it was done, 1 when a file of \"info\" cannot be played or a\n"
    "target cannot be written, 2 when the record or the command line cannot be used.\n"
    "\n"
    "Example: tavi record merge -o day.json login.json walk.json --times 3 --delay 500\n";

const QString kName = QStringLiteral("record");

int Run(const Invocation& invocation) {
  if (invocation.arguments.isEmpty()) return FailUsage(kName, QStringLiteral("expected info, play, merge or draw"));
  const QString word = invocation.arguments.first();
  const QStringList arguments = invocation.arguments.mid(1);
  if (word == QLatin1String("info")) return RunRecordInfo(arguments);
  if (word == QLatin1String("play")) return RunRecordPlay({invocation.argc, invocation.argv, arguments});
  if (word == QLatin1String("merge")) return RunRecordMerge(arguments);
  if (word == QLatin1String("draw")) return RunRecordDraw(arguments);
  return FailUsage(kName, QStringLiteral("expected info, play, merge or draw, found \"%1\"").arg(word));
}

}  // namespace

Subcommand RecordCommand() { return {"record", "tells about records, plays, merges and draws them", kHelp, Run}; }

}  // namespace tavi
