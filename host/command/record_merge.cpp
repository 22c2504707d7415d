#include "host/command/record_merge.h"

#include "host/command/command_line.h"
#include "host/record/record_file.h"
#include "host/record/written_record.h"
#include "host/system/console.h"
#include "host/system/progress_line.h"
#include "host/system/whole_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

const QString kCommand = QStringLiteral("record merge");

constexpr char kHelp[] =
    "Usage: tavi record merge -o TARGET FILE [OPTIONS] [FILE [OPTIONS]]...\n"
    "\n"
    "Writes one record that plays the others in turn. Options apply to the record before\n"
    "them.\n"
    "\n"
    "  -o TARGET     the file to write\n"
    "  --times N     play it N times, 1 or more (1)\n"
    "  --delay MS    pause between those times, in milliseconds, 0 or more (0)\n"
    "  --speed X     play it X times as fast, any number above 0 (1)\n"
    "  --gap MS      pause before the next record, in milliseconds, 0 or more, divided by\n"
    "                this record's speed (0)\n"
    "\n"
    "Write a name that begins with a dash as ./-name, or put it after \"--\".\n"
    "\n"
    "On a terminal, long work shows its progress. Ctrl+C ends it and leaves the target\n"
    "unchanged.\n"
    "\n"
    "Exit status: 0 when it was written, 1 when it cannot be written, 2 when a record or\n"
    "the command line cannot be used.\n"
    "\n"
    "Example: tavi record merge -o day.json examples/records/taps.json \\\n"
    "           examples/records/walk.json --times 3 --delay 500\n";

const QString kOutput = QStringLiteral("-o");
const QString kTimes = QStringLiteral("--times");
const QString kDelay = QStringLiteral("--delay");
const QString kGap = QStringLiteral("--gap");

// Returns the error, or an empty string.
QString TakeOption(const GivenArgument& given, MergeOrder* order) {
  if (given.option == kOutput) {
    order->target = given.value;
    return {};
  }
  if (order->records.isEmpty()) return QStringLiteral("%1 must follow the record that it applies to").arg(given.option);
  MergeParam& record = order->records.last();
  if (given.option == kTimes) return TakeWholeNumber(given, 1, &record.repeat_times);
  if (given.option == kDelay) return TakeWholeNumber(given, 0, &record.repeat_delay);
  if (given.option == kGap) return TakeWholeNumber(given, 0, &record.till_next_item_delay);
  return TakeFactor(given, &record.speed_ratio);
}

bool AreRecordsUsable(const QVector<MergeParam>& records) {
  bool all = true;
  for (const MergeParam& record : records) {
    all = IsRecordUsable(record.file_name, ReadRecordFile(record.file_name)) && all;
  }
  return all;
}

// Returns the error, or an empty string.
QString Merge(const MergeOrder& order) {
  WholeFile file(order.target);
  if (!file.Problem().isEmpty()) return file.Problem();
  const ProgressLine progress(QStringLiteral("writing ") + order.target);
  taviinputmanager::MergeRecord(file.WorkingName(), order.records);
  RecordInfo info;
  const QString problem = WrittenRecordProblem(file.WorkingName(), &info);
  if (!problem.isEmpty()) return problem;
  file.Keep();
  return file.Problem();
}

int Run(const Invocation& invocation) {
  const MergeOrder order = ReadMergeOrder(invocation.arguments);
  if (!order.problem.isEmpty()) return FailUsage(kCommand, order.problem);
  if (!AreRecordsUsable(order.records)) return kExitUsage;
  const QString problem = Merge(order);
  if (problem.isEmpty()) return kExitDone;
  PrintError(QStringLiteral("tavi record merge: cannot write %1: %2\n").arg(order.target, problem));
  return kExitProblem;
}

}  // namespace

MergeOrder ReadMergeOrder(const QStringList& arguments) {
  const ParsedArguments parsed = ParseArguments(arguments, OptionsOf(kHelp));
  MergeOrder order;
  order.problem = parsed.error;
  for (const GivenArgument& given : parsed.in_order) {
    if (!order.problem.isEmpty()) return order;
    if (given.option.isEmpty()) {
      order.records.append(MergeParam{given.value});
    } else {
      order.problem = TakeOption(given, &order);
    }
  }
  if (order.records.isEmpty()) order.problem = QStringLiteral("a record is missing");
  if (order.target.isEmpty()) order.problem = QStringLiteral("-o FILE is missing");
  return order;
}

Subcommand RecordMergeCommand() { return {"record merge", "writes one record that plays others in turn", kHelp, Run}; }

}  // namespace tavi
