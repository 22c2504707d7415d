// Input: bytes as a record file, which is read, walked, replayed, stamped and merged.
#include <exception>

#include <QJsonArray>
#include <QJsonObject>

#include "fuzz/check.h"
#include "fuzz/session.h"
#include "record/record_action.h"
#include "record/record_actions.h"
#include "record/record_file_utils.h"
#include "record/record_format.h"
#include "record/replay_context.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::fuzz {
namespace {

using namespace record_format;

constexpr int kMaxSteps = 3000;  // a record may have any number of repeats
constexpr int kReplayMs = 400;
constexpr int kTask = 1;

// GetScriptAppAndPackage does not return for a record without data.
bool FirstActionHasData(QJsonObject json) {
  while (!json.contains(kActions)) {
    const QJsonArray items = json.value(kMergedActions).toArray();
    if (items.isEmpty()) return true;  // no more data
    json = items.first().toObject();
  }
  return !json.value(kActions).toArray().first().toObject().value(kData).toString().isEmpty();
}

void ReadNames(const QString& file) {
  if (!FirstActionHasData(RecordFileUtils::GetInstance()->LoadJsonObject(file))) return;
  QString app;
  QString package;
  GetScriptAppAndPackage(file, app, package);
}

void Walk(const QString& file) {
  ReplayContext context;
  if (!RecordFileUtils::GetInstance()->LoadRecord(file, &context)) return;
  context.ApplySpeed(1.5);
  context.First();
  RecordAction action;
  for (int i = 0; i < kMaxSteps && context.CurrentAction(&action); ++i) context.Next();
}

void Replay(const QString& file, const ReplayParam& param) {
  tavi::VirtualEventDispatcher& time = Session::Get().Time();
  StartReplay(0, kTask, {}, file, param);
  time.Advance(kReplayMs);
  PauseReplay(kTask, file);
  time.Advance(1);
  ResumeReplay(kTask, file);
  time.Advance(kReplayMs);
  RestartReplay(kTask, file, param);
  time.Advance(kReplayMs);
  StopReplay(kTask, file, true);
  time.Advance(1);
}

void Stamp(const QString& file) {
  RecordInfo before;
  const bool was_readable = GetRecordInfo(file, &before);
  try {
    UpdateRecordTimestamp(file);
  } catch (const std::exception&) {
    return;  // the parser's exceptions, which are not caught; the file is unchanged
  }
  RecordInfo after;
  Check(!was_readable || GetRecordInfo(file, &after), "a stamped record can still be read");
}

void Merge(const QString& file, const MergeParam& param) {
  const QString merged = Session::Get().FilePath("merged.record");
  MergeParam plain;
  plain.file_name = file;
  if (!MergeRecord(merged, {param, plain})) return;
  RecordInfo info;
  Check(GetRecordInfo(merged, &info), "a merged record can be read");
  Walk(merged);
  MergeParam again = param;
  again.file_name = merged;
  MergeRecord(merged, {again, param});
  Walk(merged);
}

}  // namespace
}  // namespace taviinputmanager::fuzz

// The first byte sets how the record is played and merged; the others are the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace taviinputmanager::fuzz;
  if (size < 1) return 0;
  const int how = data[0];
  Session& session = Session::Get();
  const QString file = session.FilePath("input.record");
  Session::WriteFile(file, QByteArray(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1));

  RecordInfo info;
  taviinputmanager::GetRecordInfo(file, &info);
  ReadNames(file);
  Walk(file);
  constexpr double kSpeeds[] = {1, 0.5, 100, 0, -1, 1e-9, 1e300, 3};
  Replay(file, {kSpeeds[how & 7], (how & 8) != 0});
  MergeParam param;
  param.file_name = file;
  param.repeat_times = (how >> 4) - 2;
  param.repeat_delay = (how & 3) - 1;
  param.speed_ratio = kSpeeds[how & 7];
  param.till_next_item_delay = (how & 12) - 4;
  Merge(file, param);
  Stamp(file);
  session.Finish();
  return 0;
}
