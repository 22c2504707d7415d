#include <algorithm>
#include <numeric>
#include <sstream>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <Poco/JSON/Object.h>
#include <Poco/JSON/ParseHandler.h>
#include <Poco/JSON/Parser.h>
#include <Poco/JSON/Stringifier.h>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/numbers.h"
#include "record/file_replacement.h"
#include "record/json/record_writer.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/record_format.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

constexpr unsigned kIndent = 4;       // columns a level, where the file is written by the other JSON library
constexpr int kStepAsIndent = -1;     // of a nested level: the same
constexpr std::size_t kDepth = 1024;  // levels that QJsonDocument reads; anything deeper is broken for all readers

enum SaveResult : int { kSaved = 0, kNothingWorthSaving = 1, kOpenFailed = 2 };

// A recording that holds nothing but its start and fingers that go up is not worth a file.
bool IsWorthSaving(const RecordAction* action) {
  if (action->type == kTypeVControl) return action->extra1 == QLatin1String("1");
  if (action->type == kTypeTouch) return !action->data.contains(kRelease) && !action->data.contains(kReset);
  return true;
}

// Milliseconds that an item takes, for display: its repeats, the pauses between them, and the gap behind it.
int RunningTime(const RecordInfo& info, const MergeParam& param, bool is_last) {
  int time = static_cast<int>(static_cast<quint32>(info.total_running_time));
  if (param.repeat_times > 1) {
    time = AddWrapped(MultiplyWrapped(param.repeat_times - 1, param.repeat_delay),
                      MultiplyWrapped(param.repeat_times, time));
  }
  if (!is_last) time = AddWrapped(time, param.till_next_item_delay);
  return Truncate(1.0 / (param.speed_ratio > 0 ? param.speed_ratio : 1.0) * time);
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
  header.insert(kTotalRunningTime, total);  // signed: below 0 when the clock was set back meanwhile
  const auto content = [&](QIODevice* target) { return WriteRecord(header, actions, target); };
  return ReplaceFile(file, content) ? kSaved : kOpenFailed;
}

void RecordFileUtils::UpdateRecordTimestamp(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray bytes = file.readAll();
  file.close();
  if (bytes.isEmpty()) return;

  Poco::JSON::Parser parser(new Poco::JSON::ParseHandler(false));
  parser.setDepth(kDepth);
  const auto root = parser.parse(bytes.toStdString()).extract<Poco::JSON::Object::Ptr>();
  const std::string info(kInfo.data(), static_cast<std::size_t>(kInfo.size()));
  if (!root->has(info)) return;
  root->getObject(info)->set(std::string(kCreateTime.data(), static_cast<std::size_t>(kCreateTime.size())),
                             static_cast<Poco::Int64>(Clock::NowMs()));
  std::ostringstream text;
  Poco::JSON::Stringifier::stringify(root, text, kIndent, kStepAsIndent, Poco::JSON_WRAP_STRINGS);
  ReplaceFile(path, QByteArray::fromStdString(text.str()));
}

bool RecordFileUtils::MergeRecord(const QString& file, const QVector<MergeParam>& params) {
  QJsonArray items;
  RecordInfo result;
  int total = 0;
  for (const MergeParam& param : params) {
    const QJsonObject source = LoadJsonObject(param.file_name);
    if (!source.contains(kActions) && !source.contains(kMergedActions)) break;
    const QJsonObject header = source.value(kInfo).toObject();
    if (header.isEmpty()) return false;
    RecordInfo info;
    ReadRecordInfo(header, &info);
    const bool is_last = items.size() >= params.size() - 1;
    total = AddWrapped(total, RunningTime(info, param, is_last));
    if (items.isEmpty()) result = info;
    const QLatin1String list = source.contains(kActions) ? kActions : kMergedActions;
    items.append(QJsonObject{{kControl, WriteControlParam(param)}, {list, source.value(list)}});
  }
  if (items.size() != params.size()) return false;

  result.total_running_time = static_cast<quint64>(total);
  result.create_time = Clock::NowMs();
  const QJsonDocument document(QJsonObject{{kInfo, WriteRecordInfo(result)}, {kMergedActions, items}});
  return ReplaceFile(file, document.toJson());
}

}  // namespace taviinputmanager
