// Damaged files: whatever they contain, each reader returns.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <Poco/Exception.h>

#include "record/record_file_utils.h"
#include "record/replay_context.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

const char* const kSingle =
    "{'info': {'package_name': 'p', 'resolution_x': 8, 'create_time': 5, 'total_running_time': 6},"
    " 'control': {'repeat_times': 2, 'repeat_delay': 3, 'speed_ratio': 1.5},"
    " 'actions': [{'timing': 7, 'type': 'vcontrol', 'data': '{\\'params\\':{\\'app\\':\\'A\\'}}'},"
    "  {'timing': 9, 'type': 'touch', 'data': 'release', 'extra1': '2', 'extra2': '\\u4f60'}]}";
const char* const kMerged =
    "{'info': {'package_name': 'p'}, 'control': {'repeat_times': 2}, 'merged_actions': ["
    " {'control': {'till_next_item_delay': 4, 'repeat_times': 2}, 'actions': [{'timing': 7, 'data': 'marker'}]},"
    " {'merged_actions': [{'actions': [{'type': 'touch', 'data': 'a'}]}, {'actions': []}]}]}";

class DamagedRecord : public testing::TestWithParam<const char*>, protected RecordFiles {
 protected:
  DamagedRecord() : good_(Text(qstrcmp(GetParam(), "merged") == 0 ? kMerged : kSingle)) {}

  // The damages.
  QByteArray CutAt(int offset) const { return good_.left(offset); }
  QByteArray Without(int offset) const { return QByteArray(good_).remove(offset, 1); }
  QByteArray WithFlippedBit(int offset, int bit) const {
    QByteArray bytes = good_;
    bytes[offset] = static_cast<char>(bytes.at(offset) ^ (1 << bit));
    return bytes;
  }
  QByteArray WithByte(int offset, char byte) const { return QByteArray(good_).replace(offset, 1, &byte, 1); }

  // The expected results of the readers for these bytes, derived from the JSON alone.
  struct Truth {
    explicit Truth(const QByteArray& bytes);

    bool has_header;
    bool has_list;
    bool is_playable;
    bool first_action_has_data;  // or there is none at all
    bool is_json;
  };

  void ExpectAnswers(const QByteArray& bytes, const std::string& damage);
  void ExpectMergeAnswers(const QString& file, const Truth& truth, const std::string& damage);
  static void ExpectTimestampAnswers(const QString& file, const QByteArray& bytes, const std::string& damage);

  const QByteArray good_;
};

bool IsPlayable(const QJsonObject& json) {
  if (json.contains("actions")) return true;
  const QJsonArray items = json.value("merged_actions").toArray();
  for (const QJsonValue& item : items) {
    if (!IsPlayable(item.toObject())) return false;
  }
  return !items.isEmpty();
}

bool FirstActionHasData(const QJsonObject& json) {
  if (json.contains("actions")) {
    return !json.value("actions").toArray().first().toObject().value("data").toString().isEmpty();
  }
  const QJsonArray items = json.value("merged_actions").toArray();
  return items.isEmpty() || FirstActionHasData(items.first().toObject());
}

DamagedRecord::Truth::Truth(const QByteArray& bytes) {
  QJsonParseError error{};
  const QJsonObject json = QJsonDocument::fromJson(bytes, &error).object();
  is_json = error.error == QJsonParseError::NoError;
  has_header = !json.value("info").toObject().isEmpty();
  has_list = json.contains("actions") || json.contains("merged_actions");
  is_playable = has_header && IsPlayable(json);
  first_action_has_data = FirstActionHasData(json);
}

// A damaged control repeats at most 99 times: a digit, and one instead of the blank before it. Three levels of that,
// with two actions and two pauses each, stay far below the limit.
constexpr int kMostSteps = 50000;

void DamagedRecord::ExpectAnswers(const QByteArray& bytes, const std::string& damage) {
  const QString file = Put("damaged.json", bytes);
  const Truth truth(bytes);

  RecordInfo info;
  EXPECT_EQ(truth.has_header, GetRecordInfo(file, &info)) << damage;
  ReplayContext context;
  EXPECT_EQ(truth.is_playable, Utils()->LoadRecord(file, &context)) << damage;
  EXPECT_EQ(truth.is_playable, context.actions != nullptr) << damage;
  EXPECT_FALSE(context.actions && Walk(context.actions.get(), kMostSteps).endsWith("...")) << damage;
  if (truth.first_action_has_data) {
    QString app, package;
    GetScriptAppAndPackage(file, app, package);
  }
  ExpectMergeAnswers(file, truth, damage);
  ExpectTimestampAnswers(file, bytes, damage);
}

void DamagedRecord::ExpectMergeAnswers(const QString& file, const Truth& truth, const std::string& damage) {
  MergeParam param;
  param.file_name = file;
  const QString target = Path("merged.json");
  const bool merged = MergeRecord(target, {param});
  EXPECT_EQ(truth.has_header && truth.has_list, merged) << damage;
  ReplayContext context;
  EXPECT_EQ(truth.is_playable, merged && Utils()->LoadRecord(target, &context)) << damage;
}

void DamagedRecord::ExpectTimestampAnswers(const QString& file, const QByteArray& bytes, const std::string& damage) {
  try {
    UpdateRecordTimestamp(file);
  } catch (const Poco::Exception&) {
    EXPECT_EQ(bytes, Bytes(file)) << damage;
    return;
  }
  RecordInfo info;
  EXPECT_TRUE(Bytes(file) == bytes || GetRecordInfo(file, &info)) << damage;
}

std::string At(const char* damage, int offset, int more = 0) {
  return std::string(damage) + " at " + std::to_string(offset) + " (" + std::to_string(more) + ")";
}

TEST_P(DamagedRecord, IsGoodBefore) {
  const Truth truth(good_);
  EXPECT_TRUE(truth.is_json && truth.has_header && truth.is_playable && truth.first_action_has_data);
  ExpectAnswers(good_, "no damage");
}

TEST_P(DamagedRecord, CutOff) {
  for (int offset = 0; offset < good_.size(); ++offset) {
    EXPECT_FALSE(Truth(CutAt(offset)).is_json) << offset;
    ExpectAnswers(CutAt(offset), At("cut", offset));
  }
}

TEST_P(DamagedRecord, AByteLost) {
  for (int offset = 0; offset < good_.size(); ++offset) ExpectAnswers(Without(offset), At("lost", offset));
}

TEST_P(DamagedRecord, ABitFlipped) {
  for (int offset = 0; offset < good_.size(); ++offset) {
    for (int bit = 0; bit < 8; ++bit) ExpectAnswers(WithFlippedBit(offset, bit), At("flip", offset, bit));
  }
}

TEST_P(DamagedRecord, AByteReplaced) {
  for (int offset = 0; offset < good_.size(); ++offset) {
    for (const char byte : {'\0', ' ', '"', '{', '}', '[', ']', ',', '9', '-', '\xff'}) {
      ExpectAnswers(WithByte(offset, byte), At("replace", offset, byte));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Shapes, DamagedRecord, testing::Values("single", "merged"));

}  // namespace
}  // namespace taviinputmanager
