#include "record/record_file_utils.h"

#include <utility>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QSet>
#include <QString>

#include "core/numbers.h"
#include "record/json/plain_file.h"
#include "record/merge_record_actions.h"
#include "record/record_action.h"
#include "record/record_format.h"
#include "record/record_reader.h"
#include "record/replay_context.h"
#include "record/single_record_actions.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

void Take(const QJsonValue& value, QString* field) {
  if (value.isString()) *field = value.toString();
}

void Take(const QJsonValue& value, int* field) {
  if (value.isDouble()) *field = value.toInt();
}

void Take(const QJsonValue& value, double* field) {
  if (value.isDouble()) *field = value.toDouble();
}

template <typename Wide>
void TakeWide(const QJsonValue& value, Wide* field) {
  if (value.isDouble()) *field = TruncateTo<Wide>(value.toDouble());
}

// Reads files in the usual format; the library reads all others.
bool ReadOrdinary(const QString& path, RecordReader::Keep keep, RecordContents* contents) {
  QFile file(path);
  if (!OpenPlainFile(&file)) return false;
  return RecordReader(&file, keep).Read(contents);
}

// The data of the first action, at any depth; empty if there is none.
QString FirstActionData(const RecordActions* actions) {
  while (const auto* merged = dynamic_cast<const MergeRecordActions*>(actions)) actions = merged->items.first().get();
  const auto* single = static_cast<const SingleRecordActions*>(actions);
  return single && !single->IsEmpty() ? single->actions.first()->data : QString();
}

// The text that contains the start marker: the data of the first action, at any depth. Loops forever if the first list
// has none.
QString FirstActionData(QJsonObject json) {
  QString data;
  while (data.isEmpty()) {
    if (json.contains(kActions)) {
      const QJsonObject first = json.value(kActions).toArray().first().toObject();
      if (first.contains(kData)) data = first.value(kData).toString();
      continue;
    }
    const QJsonArray items = json.value(kMergedActions).toArray();
    if (items.isEmpty()) break;
    json = items.first().toObject();
  }
  return data;
}

}  // namespace

RecordFileUtils* RecordFileUtils::GetInstance() {
  static RecordFileUtils instance;
  return &instance;
}

QJsonObject RecordFileUtils::LoadJsonObject(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  file.close();
  QJsonParseError error{};
  const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
  if (error.error != QJsonParseError::NoError) return {};
  return document.object();
}

bool RecordFileUtils::GetRecordInfo(const QString& file, RecordInfo* info) {
  if (!info) return false;
  RecordContents record;
  if (!ReadOrdinary(file, RecordReader::Keep::kNothing, &record)) {
    record.info = LoadJsonObject(file).value(kInfo).toObject();
  }
  if (record.info.isEmpty()) return false;
  ReadRecordInfo(record.info, info);
  return true;
}

void RecordFileUtils::GetScriptAppAndPackage(const QString& file, QString& app, QString& package) {
  RecordContents record;
  QString marker;
  if (ReadOrdinary(file, RecordReader::Keep::kFirst, &record)) marker = FirstActionData(record.actions.get());
  if (marker.isEmpty()) marker = FirstActionData(LoadJsonObject(file));
  marker.remove(QLatin1Char('\\'));
  const QJsonObject params = QJsonDocument::fromJson(marker.toUtf8()).object().value(kParams).toObject();
  if (params.contains(kApp)) app = params.value(kApp).toString();
  if (params.contains(kPackage)) package = params.value(kPackage).toString();
}

bool RecordFileUtils::LoadRecord(const QString& file, ReplayContext* context) {
  if (!context) return false;
  RecordContents record;
  if (ReadOrdinary(file, RecordReader::Keep::kAll, &record)) {
    if (!record.actions) return false;
  } else {
    const QJsonObject json = LoadJsonObject(file);
    if (!json.contains(kActions) && !json.contains(kMergedActions)) return false;
    record = {json.value(kInfo).toObject(), ReadRecordActions(json)};
  }
  if (record.info.isEmpty()) return false;
  RecordInfo info;
  ReadRecordInfo(record.info, &info);
  context->info = info;
  if (!record.actions) return false;
  context->actions = std::move(record.actions);
  return true;
}

std::shared_ptr<RecordActions> RecordFileUtils::ReadRecordActions(const QJsonObject& json) {
  if (json.contains(kActions)) return ReadSingleRecordActions(json);
  if (json.contains(kMergedActions)) return ReadMergeRecordActions(json);
  return nullptr;
}

std::shared_ptr<SingleRecordActions> RecordFileUtils::ReadSingleRecordActions(const QJsonObject& json) {
  const auto single = std::make_shared<SingleRecordActions>();
  const QJsonArray array = json.value(kActions).toArray();
  single->actions.reserve(array.size());
  QSet<QString> types;  // so that equal texts are shared
  for (const QJsonValue& element : array) {
    auto* action = new RecordAction;
    single->actions.append(action);
    ReadAction(element.toObject(), action);
    action->type = *types.insert(action->type);
  }
  ReadControl(json, single);
  return single;
}

std::shared_ptr<MergeRecordActions> RecordFileUtils::ReadMergeRecordActions(const QJsonObject& json) {
  const QJsonArray array = json.value(kMergedActions).toArray();
  if (array.isEmpty()) return nullptr;
  const auto merged = std::make_shared<MergeRecordActions>();
  for (const QJsonValue& element : array) {
    const std::shared_ptr<RecordActions> item = ReadRecordActions(element.toObject());
    if (!item) return nullptr;  // one invalid item makes the whole file fail
    merged->items.append(item);
  }
  ReadControl(json, merged);
  return merged;
}

void RecordFileUtils::ReadControl(const QJsonObject& json, const std::shared_ptr<RecordActions>& actions) {
  if (!actions || !json.contains(kControl)) return;
  MergeParam param;
  ReadControlParam(json.value(kControl).toObject(), &param);
  actions->control = param;
}

void RecordFileUtils::ReadControlParam(const QJsonObject& json, MergeParam* param) {
  if (!param) return;
  Take(json.value(kFileName), &param->file_name);
  Take(json.value(kRepeatTimes), &param->repeat_times);
  Take(json.value(kRepeatDelay), &param->repeat_delay);
  Take(json.value(kSpeedRatio), &param->speed_ratio);
  Take(json.value(kTillNextItemDelay), &param->till_next_item_delay);
}

void RecordFileUtils::ReadRecordInfo(const QJsonObject& json, RecordInfo* info) {
  if (!info) return;
  Take(json.value(kPackageName), &info->package_name);
  // A size is stored even if the file has none.
  info->resolution = QSize(json.value(kResolutionX).toInt(), json.value(kResolutionY).toInt());
  TakeWide(json.value(kCreateTime), &info->create_time);
  TakeWide(json.value(kTotalRunningTime), &info->total_running_time);
}

void RecordFileUtils::ReadAction(const QJsonObject& json, RecordAction* action) {
  if (!action) return;
  Take(json.value(kTiming), &action->timing);
  Take(json.value(kType), &action->type);
  Take(json.value(kData), &action->data);
  Take(json.value(kExtra1), &action->extra1);
  Take(json.value(kExtra2), &action->extra2);
}

}  // namespace taviinputmanager
