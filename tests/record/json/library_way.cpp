#include "tests/record/json/library_way.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include "record/json/record_reader.h"
#include "record/merge_record_actions.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/single_record_actions.h"

namespace taviinputmanager {
namespace {

RecordFileUtils* Utils() { return RecordFileUtils::GetInstance(); }

QJsonObject ActionsAsJson(const RecordActions* actions) {
  if (!actions) return {};
  QJsonArray list;
  if (const auto* single = dynamic_cast<const SingleRecordActions*>(actions)) {
    for (const RecordAction* action : single->actions) list.append(Utils()->WriteAction(*action));
    return {{"control", Utils()->WriteControlParam(actions->control)}, {"actions", list}};
  }
  for (const auto& item : static_cast<const MergeRecordActions*>(actions)->items) {
    list.append(ActionsAsJson(item.get()));
  }
  return {{"control", Utils()->WriteControlParam(actions->control)}, {"items", list}};
}

std::string Told(const QJsonObject& json) { return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString(); }

std::string Told(const RecordContents& contents) {
  return Told(QJsonObject{{"info", contents.info}, {"record", ActionsAsJson(contents.actions.get())}});
}

// Of each list of actions the first one alone.
void KeepFirst(RecordActions* actions) {
  if (auto* single = dynamic_cast<SingleRecordActions*>(actions)) {
    while (single->actions.size() > 1) delete single->actions.takeLast();
  } else if (auto* merged = dynamic_cast<MergeRecordActions*>(actions)) {
    for (const auto& item : merged->items) KeepFirst(item.get());
  }
}

RecordContents ByLibrary(const QJsonObject& json, RecordReader::Keep keep) {
  RecordContents contents;
  contents.info = json.value("info").toObject();
  if (keep == RecordReader::Keep::kNothing) return contents;
  contents.actions = Utils()->ReadRecordActions(json);
  if (keep == RecordReader::Keep::kFirst) KeepFirst(contents.actions.get());
  return contents;
}

}  // namespace

std::string DifferenceInReading(const QByteArray& bytes, int window_bytes, int* read_count) {
  QJsonParseError error{};
  const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
  for (const auto keep : {RecordReader::Keep::kNothing, RecordReader::Keep::kFirst, RecordReader::Keep::kAll}) {
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly);
    RecordContents contents;
    if (!RecordReader(&file, keep, window_bytes).Read(&contents)) continue;
    *read_count += keep == RecordReader::Keep::kAll ? 1 : 0;
    if (error.error != QJsonParseError::NoError) return "read, though the library refuses it";
    if (!document.isObject()) return "read, though it is no object";
    const std::string expected = Told(ByLibrary(document.object(), keep));
    const std::string found = Told(contents);
    if (found != expected) return "the library reads " + expected + "\n  but it was read as " + found;
  }
  return {};
}

QByteArray WrittenByLibrary(const QJsonObject& info, const QList<RecordAction*>& actions) {
  QJsonArray list;
  for (const RecordAction* action : actions) list.append(Utils()->WriteAction(*action));
  return QJsonDocument(QJsonObject{{"info", info}, {"actions", list}}).toJson();
}

}  // namespace taviinputmanager
