#include "host/record/record_merge.h"

#include <optional>

#include "host/command_line.h"
#include "host/record/record_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

const QString kCommand = QStringLiteral("record merge");
const QString kOutput = QStringLiteral("-o");
const QString kTimes = QStringLiteral("--times");
const QString kDelay = QStringLiteral("--delay");
const QString kSpeed = QStringLiteral("--speed");
const QString kGap = QStringLiteral("--gap");

// Returns what is wrong, or nothing.
QString TakeNumber(const GivenArgument& given, int least, int* field) {
  const std::optional<int> number = ParseWholeNumber(given.value, least);
  if (!number) {
    return QStringLiteral("%1 needs a whole number from %2 on, not \"%3\"")
        .arg(given.option)
        .arg(least)
        .arg(given.value);
  }
  *field = *number;
  return {};
}

QString TakeSpeed(const GivenArgument& given, double* field) {
  const std::optional<double> speed = ParseFactor(given.value);
  if (!speed) return QStringLiteral("%1 needs a number above 0, not \"%2\"").arg(given.option, given.value);
  *field = *speed;
  return {};
}

QString TakeOption(const GivenArgument& given, MergeOrder* order) {
  if (given.option == kOutput) {
    order->target = given.value;
    return {};
  }
  if (order->records.isEmpty()) return QStringLiteral("%1 stands behind the record that it is about").arg(given.option);
  MergeParam& record = order->records.last();
  if (given.option == kTimes) return TakeNumber(given, 1, &record.repeat_times);
  if (given.option == kDelay) return TakeNumber(given, 0, &record.repeat_delay);
  if (given.option == kGap) return TakeNumber(given, 0, &record.till_next_item_delay);
  return TakeSpeed(given, &record.speed_ratio);
}

bool AreRecordsUsable(const QVector<MergeParam>& records) {
  bool all = true;
  for (const MergeParam& record : records) {
    all = IsRecordUsable(record.file_name, ReadRecordFile(record.file_name)) && all;
  }
  return all;
}

}  // namespace

MergeOrder ReadMergeOrder(const QStringList& arguments) {
  const ParsedArguments parsed =
      ParseArguments(arguments, {{kOutput, true}, {kTimes, true}, {kDelay, true}, {kSpeed, true}, {kGap, true}});
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

int RunRecordMerge(const QStringList& arguments) {
  const MergeOrder order = ReadMergeOrder(arguments);
  if (!order.problem.isEmpty()) return FailUsage(kCommand, order.problem);
  if (!AreRecordsUsable(order.records)) return kExitUsage;
  if (taviinputmanager::MergeRecord(order.target, order.records)) return kExitDone;
  PrintError(QStringLiteral("tavi record merge: cannot write %1\n").arg(order.target));
  return kExitProblem;
}

}  // namespace tavi
