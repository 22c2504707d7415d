#include "tests/record/json/library_way.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <Poco/Exception.h>

#include "qt/json_text.h"
#include "record/json/file_layout.h"
#include "record/json/poco_json.h"
#include "record/merge_record_actions.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/record_reader.h"
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

std::string Told(const QJsonObject& json) {
  return qt::JsonText(QJsonDocument(json), QJsonDocument::Compact).toStdString();
}

std::string Told(const RecordContents& contents) {
  return Told(QJsonObject{{"info", contents.info}, {"record", ActionsAsJson(contents.actions.get())}});
}

// Only the first of each list of actions.
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

// Blanks after a document are not part of it.
QByteArray WithoutEnd(QByteArray bytes) {
  while (!bytes.isEmpty() && QByteArray(" \n\r\t").contains(bytes.back())) bytes.chop(1);
  return bytes;
}

bool FindPlaces(const QByteArray& bytes, FileLayout::Writer writer, int window_bytes, RecordPlaces* places) {
  QBuffer file;
  file.setData(bytes);
  file.open(QIODevice::ReadOnly);
  return FileLayout(&file, writer, window_bytes).Find(places);
}

QJsonValue ValueIn(const QByteArray& bytes, const ByteRange& range) {
  const QByteArray value = bytes.mid(static_cast<int>(range.begin), static_cast<int>(range.end - range.begin));
  return QJsonDocument::fromJson('[' + value + ']').array().at(0);
}

// A list that is at this place, or nowhere.
bool IsAt(const std::optional<ByteRange>& place, const QByteArray& bytes, const QJsonValue& value) {
  return place ? ValueIn(bytes, *place) == value : value.isUndefined();
}

std::string DifferenceInMergedCopy(const QByteArray& bytes, int window_bytes, int* copied_count) {
  RecordPlaces places;
  if (!FindPlaces(bytes, FileLayout::Writer::kQt, window_bytes, &places)) return {};
  ++*copied_count;
  const QJsonDocument document = QJsonDocument::fromJson(bytes);
  const QJsonObject json = document.object();
  if (WithoutEnd(qt::JsonText(document)) != WithoutEnd(bytes))
    return "the library writes " + qt::JsonText(document).toStdString();
  if (QJsonDocument::fromJson(places.info).object() != json.value("info").toObject()) return "another header";
  if (!IsAt(places.actions, bytes, json.value("actions"))) return "other actions";
  if (!IsAt(places.merged_actions, bytes, json.value("merged_actions"))) return "other merged actions";
  return {};
}

std::string DifferenceInStampedCopy(const QByteArray& bytes, int window_bytes, int* copied_count) {
  constexpr qint64 kTime = 1577836800123;
  RecordPlaces places;
  if (!FindPlaces(bytes, FileLayout::Writer::kPoco, window_bytes, &places) || !places.create_time) return {};
  ++*copied_count;
  const int begin = static_cast<int>(places.create_time->begin);
  const int end = static_cast<int>(places.create_time->end);
  const QByteArray copied =
      bytes.left(begin) + QByteArray::number(kTime) + bytes.mid(end, static_cast<int>(places.end) - end);
  const std::optional<std::string> stamped = poco_json::Stamped(bytes.toStdString(), kTime);
  return stamped == copied.toStdString() ? std::string() : "the library writes " + stamped.value_or("nothing");
}

// The result of the timestamps' library for the bytes; nothing if it rejects them.
QByteArray Stamped(const QByteArray& bytes) {
  try {
    return QByteArray::fromStdString(poco_json::Stamped(bytes.toStdString(), 5).value_or(std::string()));
  } catch (const Poco::Exception&) {
    return {};
  }
}

}  // namespace

std::string DifferenceInCopying(const QByteArray& bytes, int window_bytes, int* copied_count) {
  for (const QByteArray& file : {bytes, qt::JsonText(QJsonDocument::fromJson(bytes)), Stamped(bytes)}) {
    std::string difference = DifferenceInMergedCopy(file, window_bytes, copied_count);
    if (difference.empty()) difference = DifferenceInStampedCopy(file, window_bytes, copied_count);
    if (!difference.empty()) return difference + "\n  of " + file.toStdString();
  }
  return {};
}

QByteArray MergedByLibrary(const QVector<MergeParam>& params, qint64 create_time) {
  QJsonArray items;
  for (const MergeParam& param : params) {
    const QJsonObject json = Utils()->LoadJsonObject(param.file_name);
    const QString list = json.contains("actions") ? "actions" : "merged_actions";
    if (!json.contains(list) || json.value("info").toObject().isEmpty()) return {};
    items.append(QJsonObject{{"control", Utils()->WriteControlParam(param)}, {list, json.value(list)}});
  }
  RecordInfo info;
  Utils()->ReadRecordInfo(Utils()->LoadJsonObject(params.first().file_name).value("info").toObject(), &info);
  info.create_time = create_time;
  // For items that are played once, without a gap: a sum of ints, which wraps beyond their range.
  const quint32 total = static_cast<quint32>(info.total_running_time) * static_cast<quint32>(params.size());
  info.total_running_time = static_cast<quint64>(static_cast<int>(total));
  return qt::JsonText(QJsonDocument(QJsonObject{{"info", Utils()->WriteRecordInfo(info)}, {"merged_actions", items}}));
}

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
  return qt::JsonText(QJsonDocument(QJsonObject{{"info", info}, {"actions", list}}));
}

}  // namespace taviinputmanager
