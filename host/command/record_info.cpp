#include "host/command/record_info.h"

#include <algorithm>

#include <QDateTime>
#include <QMap>
#include <QTimeZone>

#include "host/command/command_line.h"
#include "host/record/record_file.h"
#include "host/record/record_walk.h"
#include "host/record/time_text.h"
#include "host/system/console.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

const QString kName = QStringLiteral("record info");

constexpr char kHelp[] =
    "Usage: tavi record info FILE...\n"
    "\n"
    "Prints what record files contain: the app, the display, when they were made, how long\n"
    "they play, and on standard error what a replay drops.\n"
    "\n"
    "Exit status: 0 when every file can be played, 1 when one cannot, 2 for a wrong\n"
    "command line.\n"
    "\n"
    "Example: tavi record info examples/records/walk.json\n";

constexpr int kDeepestIndent = 20;  // columns; deeper levels are rare and only mentioned

QString Line(const char* name, const QString& value) {
  return QStringLiteral("  %1%2\n").arg(QLatin1String(name), -14).arg(value);
}

QString OrNone(const QString& text) { return text.isEmpty() ? QStringLiteral("-") : text; }

void CountActions(const RecordPart& part, QMap<QString, int>* counts) {
  for (const RecordAction& action : part.actions) ++(*counts)[action.type];
  for (const RecordPart& item : part.parts) CountActions(item, counts);
}

// "5 (3 touch, 1 keyboard, 1 vcontrol)"
QString ActionsText(const RecordPart& part) {
  QMap<QString, int> counts;
  CountActions(part, &counts);
  int sum = 0;
  QStringList by_type;
  for (auto it = counts.begin(); it != counts.end(); ++it) {
    sum += it.value();
    by_type +=
        QStringLiteral("%1 %2").arg(it.value()).arg(it.key().isEmpty() ? QStringLiteral("without type") : it.key());
  }
  const QString total = QString::number(sum);
  return by_type.isEmpty() ? total : total + QStringLiteral(" (%1)").arg(by_type.join(QStringLiteral(", ")));
}

// Levels of merged lists: 0 for a list of actions.
int Depth(const RecordPart& part) {
  int depth = 0;
  for (const RecordPart& item : part.parts) depth = std::max(depth, Depth(item));
  return part.is_merged ? depth + 1 : 0;
}

QString KindText(const RecordPart& root) {
  if (!root.is_merged) return QStringLiteral("single record");
  const int parts = static_cast<int>(root.parts.size());
  const QString text = QStringLiteral("merged record of %1 part%2").arg(parts).arg(parts == 1 ? "" : "s");
  const int depth = Depth(root);
  return depth > 1 ? text + QStringLiteral(", %1 levels").arg(depth) : text;
}

// How a list is played, unless it is simply played once.
QString ControlText(const MergeParam& control) {
  QString text;
  if (control.repeat_times > 1) text += QStringLiteral(", %1 times").arg(control.repeat_times);
  if (control.repeat_times > 1 && control.repeat_delay > 0) {
    text += QStringLiteral(" with pauses of %1 ms").arg(control.repeat_delay);
  }
  if (control.speed_ratio != 1) text += QStringLiteral(", speed %1").arg(control.speed_ratio);
  if (control.till_next_item_delay > 0) text += QStringLiteral(", then %1 ms").arg(control.till_next_item_delay);
  return text;
}

QString DescribeParts(const RecordPart& part, const QString& indent) {
  if (indent.size() > kDeepestIndent) return part.is_merged ? indent + QStringLiteral("...\n") : QString();
  QString text;
  int number = 0;
  for (const RecordPart& item : part.parts) {
    text += indent + QStringLiteral("%1. ").arg(++number) + OrNone(item.control.file_name) + QStringLiteral(": ") +
            ActionsText(item) + QStringLiteral(" actions") + ControlText(item.control) + QLatin1Char('\n');
    text += DescribeParts(item, indent + QStringLiteral("   "));
  }
  return text;
}

QString PlayingText(const WalkResult& walk) {
  const QString text = QStringLiteral("%1 for %2 action%3").arg(SecondsText(static_cast<double>(walk.total_ms)));
  const QString counted = text.arg(walk.actions).arg(walk.actions == 1 ? "" : "s");
  switch (walk.end) {
    case WalkResult::End::kNoType: return counted + QStringLiteral(", up to an action without type");
    case WalkResult::End::kLimit: return QStringLiteral("more than ") + counted;
    default: return counted;
  }
}

// If the first action has no data, the library would search for the marker endlessly.
QString AppText(const QString& name, const RecordPart& root) {
  const RecordAction* first = FirstAction(root);
  QString app;
  QString package;
  if (first && !first->data.isEmpty()) taviinputmanager::GetScriptAppAndPackage(name, app, package);
  if (app.isEmpty() && package.isEmpty()) return QStringLiteral("-");
  return QStringLiteral("%1 (%2)").arg(OrNone(app), OrNone(package));
}

QString CreatedText(qint64 create_time) {
  if (create_time == 0) return QStringLiteral("-");
  return QDateTime::fromMSecsSinceEpoch(create_time, QTimeZone::utc())
      .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss 'UTC'"));
}

bool TellAbout(const QString& name) {
  const RecordFile record = ReadRecordFile(name);
  if (!record.HasErrors()) Print(DescribeRecord(name, record));
  return IsRecordUsable(name, record);
}

int Run(const Invocation& invocation) {
  const ParsedArguments parsed = ParseArguments(invocation.arguments, OptionsOf(kHelp));
  if (!parsed.error.isEmpty()) return FailUsage(kName, parsed.error);
  if (parsed.positional.isEmpty()) return FailUsage(kName, QStringLiteral("a record is missing"));
  bool all_good = true;
  for (const QString& name : parsed.positional) all_good = TellAbout(name) && all_good;
  return all_good ? kExitDone : kExitProblem;
}

}  // namespace

QString DescribeRecord(const QString& name, const RecordFile& record) {
  RecordInfo info;
  taviinputmanager::GetRecordInfo(name, &info);
  const WalkResult walk = WalkRecord(record.root, 1, [](const WalkStep& /*step*/) {});
  const QSize size = info.resolution;
  QString text = name + QLatin1Char('\n');
  text += Line("kind", KindText(record.root) + ControlText(record.root.control));
  text += Line("app", AppText(name, record.root));
  text += Line("package", OrNone(info.package_name));
  text += Line("display",
               size.isEmpty() ? QStringLiteral("-") : QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()));
  text += Line("created", CreatedText(info.create_time));
  text += Line("header says", SecondsText(static_cast<double>(info.total_running_time)));
  text += Line("plays", PlayingText(walk));
  text += Line("actions", ActionsText(record.root));
  return text + DescribeParts(record.root, QStringLiteral("    "));
}

Subcommand RecordInfoCommand() { return {"record info", "prints what record files contain", kHelp, Run}; }

}  // namespace tavi
