#include "tests/record/record_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonParseError>

#include "record/record_file_utils.h"

namespace taviinputmanager {
namespace {

// In memory if the system supports it: there are many files, and each written one is synced.
QString FolderTemplate() {
  const QString memory("/dev/shm");
  return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + "/record-test-XXXXXX";
}

}  // namespace

RecordFiles::RecordFiles() : folder_(FolderTemplate()) {
  EXPECT_TRUE(folder_.isValid()) << folder_.errorString().toStdString();
}

RecordFiles::~RecordFiles() {
  const QString target = qEnvironmentVariable("TAVI_WRITTEN_RECORDS");
  if (target.isEmpty()) return;
  for (const QString& name : Names()) {
    if (!put_.contains(name)) QFile::copy(Path(name), QDir(target).filePath(name));
  }
}

QString RecordFiles::Path(const QString& name) const { return folder_.filePath(name); }

QString RecordFiles::Put(const QString& name, const QByteArray& bytes) const {
  put_.append(name);
  QFile file(Path(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_EQ(bytes.size(), file.write(bytes));
  return file.fileName();
}

QByteArray RecordFiles::Bytes(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

QJsonObject RecordFiles::JsonOf(const QString& path) { return Json(Bytes(path)); }

QStringList RecordFiles::Names() const {
  return QDir(folder_.path())
      .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

RecordFileUtils* RecordFiles::Utils() { return RecordFileUtils::GetInstance(); }

QByteArray Text(QByteArray json) { return json.replace('\'', '"'); }

QJsonObject Json(const QByteArray& json) {
  QJsonParseError error{};
  const QJsonDocument document = QJsonDocument::fromJson(Text(json), &error);
  EXPECT_EQ(QJsonParseError::NoError, error.error) << error.errorString().toStdString() << "\n" << json.toStdString();
  EXPECT_TRUE(document.isObject()) << json.toStdString();
  return document.object();
}

QByteArray NestedLists(int levels) { return QByteArray(levels, '[') + QByteArray(levels, ']'); }

QByteArray NestedObjects(int levels) { return QByteArray("{\"a\":").repeated(levels) + '0' + QByteArray(levels, '}'); }

QByteArray NestedByTurns(int levels) {
  QByteArray json = "0";
  for (int level = 0; level < levels; ++level) json = level % 2 == 0 ? '[' + json + ']' : "{\"a\":" + json + '}';
  return json;
}

std::string Compact(const QJsonObject& json) {
  return QJsonDocument(json).toJson(QJsonDocument::Compact).replace('"', '\'').toStdString();
}

std::shared_ptr<SingleRecordActions> Single(std::initializer_list<Step> steps, const MergeParam& control) {
  auto single = std::make_shared<SingleRecordActions>();
  for (const Step& step : steps) {
    single->actions.append(new RecordAction{step.timing, QStringLiteral("touch"), step.data, {}, {}});
  }
  single->control = control;
  return single;
}

std::shared_ptr<MergeRecordActions> Merged(const MergeRecordActions::Items& items, const MergeParam& control) {
  auto merged = std::make_shared<MergeRecordActions>();
  merged->items = items;
  merged->control = control;
  return merged;
}

MergeParam Repeated(int times, int delay_ms) {
  MergeParam control;
  control.repeat_times = times;
  control.repeat_delay = delay_ms;
  return control;
}

MergeParam AtSpeed(double ratio) { return WithGap(0, ratio); }

MergeParam WithGap(int ms, double speed_ratio) {
  MergeParam control;
  control.till_next_item_delay = ms;
  control.speed_ratio = speed_ratio;
  return control;
}

QStringList Walk(RecordActions* actions, int limit) {
  QStringList steps;
  RecordAction action;
  int delay = -1;
  bool more = actions->First(&action, &delay);
  while (more || !actions->IsThrough()) {
    if (steps.size() == limit) return steps << QStringLiteral("...");
    const QString what = action.data.isEmpty() ? action.type : action.data;
    steps << (more ? QStringLiteral("%1 %2").arg(delay).arg(what) : QStringLiteral("none"));
    action = RecordAction();
    delay = -1;
    more = actions->Next(&action, &delay);
  }
  return steps;
}

QStringList StepsOfReplay(ReplayContext* context, int limit) {
  QStringList steps;
  RecordAction action;
  for (context->First(); context->CurrentAction(&action); context->Next()) {
    if (steps.size() == limit) return steps << QStringLiteral("...");
    steps << QStringLiteral("%1 %2").arg(context->next_delay).arg(action.data.isEmpty() ? action.type : action.data);
  }
  return steps;
}

}  // namespace taviinputmanager
