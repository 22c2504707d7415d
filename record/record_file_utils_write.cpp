#include <algorithm>
#include <numeric>
#include <optional>
#include <string>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/numbers.h"
#include "qt/json_text.h"
#include "record/file_replacement.h"
#include "record/json/json_output.h"
#include "record/json/merged_writer.h"
#include "record/json/poco_json.h"
#include "record/json/record_source.h"
#include "record/json/record_writer.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/record_format.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

enum SaveResult : int { kSaved = 0, kNothingWorthSaving = 1, kOpenFailed = 2 };

// A recording that contains nothing but its start and releases is not saved.
bool IsWorthSaving(const RecordAction* action) {
  if (action->type == kTypeVControl) return action->extra1 == QLatin1String("1");
  if (action->type == kTypeTouch) return !action->data.contains(kRelease) && !action->data.contains(kReset);
  return true;
}

// The duration of an item in milliseconds, for display: its repeats, the pauses between them, and the gap after it.
int RunningTime(const RecordInfo& info, const MergeParam& param, bool is_last) {
  int time = static_cast<int>(static_cast<quint32>(info.total_running_time));
  if (param.repeat_times > 1) {
    time = AddWrapped(MultiplyWrapped(param.repeat_times - 1, param.repeat_delay),
                      MultiplyWrapped(param.repeat_times, time));
  }
  if (!is_last) time = AddWrapped(time, param.till_next_item_delay);
  return Truncate(1.0 / (param.speed_ratio > 0 ? param.speed_ratio : 1.0) * time);
}

// The header of a merged record: the names of its first item, and the duration of all.
class MergedHeader {
 public:
  explicit MergedHeader(qsizetype item_count) : item_count_(item_count) {}

  void Add(const QJsonObject& header, const MergeParam& param) {
    RecordInfo info;
    RecordFileUtils::GetInstance()->ReadRecordInfo(header, &info);
    if (count_ == 0) result_ = info;
    ++count_;
    total_ = AddWrapped(total_, RunningTime(info, param, count_ == item_count_));
  }
  QJsonObject Json() {
    result_.total_running_time = static_cast<quint64>(total_);
    result_.create_time = Clock::NowMs();
    return RecordFileUtils::GetInstance()->WriteRecordInfo(result_);
  }

 private:
  const qsizetype item_count_;
  qsizetype count_ = 0;
  int total_ = 0;
  RecordInfo result_;
};

// For files in this library's format. Nothing if one of them has another, or changes meanwhile.
std::optional<bool> MergeByCopying(const QString& file, const QVector<MergeParam>& params) {
  MergedHeader header(params.size());
  MergedWriter writer;
  for (const MergeParam& param : params) {
    if (!writer.Add(param.file_name, RecordFileUtils::GetInstance()->WriteControlParam(param))) return std::nullopt;
    header.Add(writer.LastInfo(), param);
  }
  const QJsonObject info = header.Json();
  const bool is_written = ReplaceContent(file, [&](QIODevice* target) { return writer.Write(info, target); });
  if (writer.HasChangedSource()) return std::nullopt;
  return is_written;
}

bool MergeByLibrary(const QString& file, const QVector<MergeParam>& params) {
  RecordFileUtils* const utils = RecordFileUtils::GetInstance();
  MergedHeader header(params.size());
  QJsonArray items;
  for (const MergeParam& param : params) {
    const QJsonObject source = utils->LoadJsonObject(param.file_name);
    const QJsonObject info = source.value(kInfo).toObject();
    if ((!source.contains(kActions) && !source.contains(kMergedActions)) || info.isEmpty()) return false;
    header.Add(info, param);
    const QLatin1String list = source.contains(kActions) ? kActions : kMergedActions;
    items.append(QJsonObject{{kControl, utils->WriteControlParam(param)}, {list, source.value(list)}});
  }
  const QJsonDocument document(QJsonObject{{kInfo, header.Json()}, {kMergedActions, items}});
  return ReplaceContent(file, qt::JsonText(document));
}

// The same two cases.
bool StampByCopying(const QString& path, const QByteArray& create_time) {
  RecordSource source(path);
  if (!source.Find(FileLayout::Writer::kPoco) || !source.Places().create_time) return false;
  const ByteRange before{0, source.Places().create_time->begin};
  const ByteRange behind{source.Places().create_time->end, source.Places().end};
  ReplaceContent(path, [&](QIODevice* target) {
    JsonOutput output(target);
    if (!source.Copy(before, 0, &output)) return false;
    output.Add({create_time.constData(), static_cast<std::size_t>(create_time.size())});
    return source.Copy(behind, 0, &output) && output.Finish();
  });
  return !source.HasChanged();
}

void StampByLibrary(const QString& path, qint64 create_time) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray bytes = file.readAll();
  file.close();
  if (bytes.isEmpty()) return;
  const std::optional<std::string> stamped = poco_json::Stamped(bytes.toStdString(), create_time);
  if (stamped) ReplaceContent(path, QByteArray::fromStdString(*stamped));
}

}  // namespace

QJsonObject RecordFileUtils::WriteRecordInfo(const RecordInfo& info) {
  return {{kPackageName, info.package_name},
          {kResolutionX, info.resolution.width()},
          {kResolutionY, info.resolution.height()},
          {kCreateTime, info.create_time},
          {kTotalRunningTime, static_cast<double>(info.total_running_time)}};
}

QJsonObject RecordFileUtils::WriteControlParam(const MergeParam& param) {
  return {{kFileName, param.file_name},
          {kRepeatTimes, param.repeat_times},
          {kRepeatDelay, param.repeat_delay},
          {kSpeedRatio, param.speed_ratio},
          {kTillNextItemDelay, param.till_next_item_delay}};
}

QJsonObject RecordFileUtils::WriteAction(const RecordAction& action) {
  return {{kTiming, action.timing},
          {kType, action.type},
          {kData, action.data},
          {kExtra1, action.extra1},
          {kExtra2, action.extra2}};
}

int RecordFileUtils::SaveRecord(const QString& package_name, const QString& file, const QList<RecordAction*>& actions) {
  if (!std::any_of(actions.begin(), actions.end(), IsWorthSaving)) return kNothingWorthSaving;
  const qint64 total = std::accumulate(actions.begin(), actions.end(), qint64{0},
                                       [](qint64 sum, const RecordAction* action) { return sum + action->timing; });
  RecordInfo info;
  info.package_name = package_name;
  info.resolution = DisplayGeometry::GetInstance()->GetDisplayRect().size();
  info.create_time = Clock::NowMs();
  QJsonObject header = WriteRecordInfo(info);
  header.insert(kTotalRunningTime, total);  // signed: negative if the clock was set back meanwhile
  const auto content = [&](QIODevice* target) { return WriteRecord(header, actions, target); };
  return ReplaceContent(file, content) ? kSaved : kOpenFailed;
}

void RecordFileUtils::UpdateRecordTimestamp(const QString& path) {
  const qint64 now = Clock::NowMs();
  if (!StampByCopying(path, QByteArray::number(now))) StampByLibrary(path, now);
}

bool RecordFileUtils::MergeRecord(const QString& file, const QVector<MergeParam>& params) {
  const std::optional<bool> merged = MergeByCopying(file, params);
  return merged ? *merged : MergeByLibrary(file, params);
}

}  // namespace taviinputmanager
