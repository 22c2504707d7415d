#include <cmath>
#include <initializer_list>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include "host/record/record_action_check.h"
#include "host/record/record_file.h"
#include "host/system/plain_file.h"
#include "host/system/progress_line.h"

namespace tavi {

namespace {

const QLatin1String kInfo("info");
const QLatin1String kActions("actions");
const QLatin1String kMergedActions("merged_actions");
const QLatin1String kControl("control");

const QLatin1String kPackage("package_name");
const QLatin1String kWidth("resolution_x");
const QLatin1String kHeight("resolution_y");
const QLatin1String kCreated("create_time");
const QLatin1String kTotal("total_running_time");
const QLatin1String kTiming("timing");
const QLatin1String kType("type");
const QLatin1String kData("data");
const QLatin1String kExtra1("extra1");
const QLatin1String kExtra2("extra2");
const QLatin1String kFileName("file_name");
const QLatin1String kTimes("repeat_times");
const QLatin1String kDelay("repeat_delay");
const QLatin1String kSpeed("speed_ratio");
const QLatin1String kGap("till_next_item_delay");

QString Join(const QString& path, const QString& key) { return path.isEmpty() ? key : path + QLatin1Char('.') + key; }

QString Element(const QString& path, int index) { return path + QStringLiteral("[%1]").arg(index); }

QString WithArticle(const QJsonValue& value) {
  switch (value.type()) {
    case QJsonValue::Bool: return QStringLiteral("true or false");
    case QJsonValue::Double: return QStringLiteral("a number");
    case QJsonValue::String: return QStringLiteral("a text");
    case QJsonValue::Array: return QStringLiteral("a list");
    case QJsonValue::Object: return QStringLiteral("an object");
    default: return QStringLiteral("null");
  }
}

// The line and character of a byte in a text.
void FindPlace(const QByteArray& bytes, int offset, RecordFinding* finding) {
  const QByteArray before = bytes.left(offset);
  finding->line = before.count('\n') + 1;
  finding->column = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).toUcs4().size() + 1;
}

// Reads one file. The `path` of each function is the position within the file of what it reads.
class RecordReader {
 public:
  RecordFile Read(const QString& name) {
    QByteArray bytes;
    QJsonObject root;
    if (ReadBytes(name, &bytes) && ReadJson(bytes, &root)) ReadDocument(root);
    return std::move(record_);
  }

 private:
  bool Error(const QString& path, const QString& message) {
    record_.findings.append({true, 0, 0, path, message});
    return false;
  }
  void Warn(const QString& path, const QString& message) { record_.findings.append({false, 0, 0, path, message}); }

  bool ReadBytes(const QString& name, QByteArray* bytes) {
    const QString refusal = RecordRefusal(name);
    if (!refusal.isEmpty()) return Error({}, QStringLiteral("cannot be read: ") + refusal);
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
      return Error({}, QStringLiteral("cannot be read: %1").arg(file.errorString()));
    }
    *bytes = file.readAll();
    return true;
  }

  bool ReadJson(const QByteArray& bytes, QJsonObject* root) {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
      RecordFinding finding{true, 0, 0, {}, QStringLiteral("broken JSON: %1").arg(error.errorString())};
      FindPlace(bytes, error.offset, &finding);
      record_.findings.append(finding);
      return false;
    }
    *root = document.object();
    return document.isObject() || Error({}, QStringLiteral("not a record: the file holds a list"));
  }

  void ReadDocument(const QJsonObject& root) {
    CheckInfo(root);
    if (!root.contains(kActions) && !root.contains(kMergedActions)) {
      Error({}, QStringLiteral("not a record: it has neither \"actions\" nor \"merged_actions\""));
      return;
    }
    WarnOfOtherKeys(root, {}, {kInfo, kActions, kMergedActions, kControl});
    ReadPart(root, {}, &record_.root);
    const RecordAction* first = FirstAction(record_.root);
    if (record_.HasErrors() || (first && !first->data.isEmpty())) return;
    Warn({}, QStringLiteral("the first action has no data; a host that reads the app of this file will hang"));
  }

  void CheckInfo(const QJsonObject& root) {
    const QJsonValue info = root.value(kInfo);
    if (info.isUndefined()) {
      Error(kInfo, QStringLiteral("missing"));
    } else if (!info.isObject()) {
      Error(kInfo, QStringLiteral("%1 where an object belongs").arg(WithArticle(info)));
    } else if (info.toObject().isEmpty()) {
      Error(kInfo, QStringLiteral("empty"));
    } else {
      CheckInfoFields(info.toObject());
    }
  }

  // The library reads the values itself.
  void CheckInfoFields(const QJsonObject& info) {
    QString text;
    int number = 0;
    double time = 0;
    Take(info, kInfo, kPackage, &text);
    Take(info, kInfo, kWidth, &number);
    Take(info, kInfo, kHeight, &number);
    Take(info, kInfo, kCreated, &time);
    Take(info, kInfo, kTotal, &time);
    WarnOfOtherKeys(info, kInfo, {kPackage, kWidth, kHeight, kCreated, kTotal});
  }

  // A list of actions takes precedence over a merged one beside it.
  void ReadPart(const QJsonObject& json, const QString& path, RecordPart* part) {
    ReadControl(json, path, &part->control);
    part->is_merged = !json.contains(kActions);
    if (part->is_merged) return ReadParts(json.value(kMergedActions), Join(path, kMergedActions), part);
    if (json.contains(kMergedActions)) {
      Warn(Join(path, kMergedActions), QStringLiteral("ignored because there is \"actions\" beside it"));
    }
    ReadActions(json.value(kActions), Join(path, kActions), part);
  }

  void ReadParts(const QJsonValue& list, const QString& path, RecordPart* part) {
    const QJsonArray items = list.toArray();
    if (!list.isArray()) {
      Error(path, QStringLiteral("%1 where a list belongs").arg(WithArticle(list)));
      return;
    }
    if (items.isEmpty()) Error(path, QStringLiteral("empty: a merged record needs a part to play"));
    for (int i = 0; i < items.size(); ++i) {
      RecordPart item;
      ReadItem(items.at(i), Element(path, i), &item);
      part->parts.push_back(std::move(item));
    }
  }

  void ReadItem(const QJsonValue& value, const QString& path, RecordPart* part) {
    const QJsonObject item = value.toObject();
    if (!item.contains(kActions) && !item.contains(kMergedActions)) {
      Error(path, QStringLiteral("it has neither \"actions\" nor \"merged_actions\""));
      return;
    }
    WarnOfOtherKeys(item, path, {kActions, kMergedActions, kControl});
    ReadPart(item, path, part);
  }

  void ReadActions(const QJsonValue& list, const QString& path, RecordPart* part) {
    if (!list.isArray()) Warn(path, QStringLiteral("%1 where a list belongs; plays nothing").arg(WithArticle(list)));
    const QJsonArray actions = list.toArray();
    part->actions.reserve(static_cast<std::size_t>(actions.size()));
    for (int i = 0; i < actions.size(); ++i) part->actions.push_back(ReadAction(actions.at(i), Element(path, i)));
  }

  RecordAction ReadAction(const QJsonValue& value, const QString& path) {
    RecordAction action;
    if (!value.isObject()) {
      Warn(path, QStringLiteral("%1 where an action belongs; the replay ends here").arg(WithArticle(value)));
      return action;
    }
    const QJsonObject json = value.toObject();
    Take(json, path, kTiming, &action.timing);
    Take(json, path, kType, &action.type);
    Take(json, path, kData, &action.data);
    Take(json, path, kExtra1, &action.extra1);
    Take(json, path, kExtra2, &action.extra2);
    WarnOfOtherKeys(json, path, {kTiming, kType, kData, kExtra1, kExtra2});
    if (action.timing < 0) Warn(Join(path, kTiming), QStringLiteral("a value below 0 waits like 0"));
    const QString problem = ActionProblem(action);
    if (!problem.isEmpty()) Warn(path, problem);
    return action;
  }

  void ReadControl(const QJsonObject& json, const QString& path, MergeParam* param) {
    if (!json.contains(kControl)) return;
    const QString place = Join(path, kControl);
    const QJsonValue value = json.value(kControl);
    if (!value.isObject()) {
      return Warn(place, QStringLiteral("%1 where an object belongs; reads as none").arg(WithArticle(value)));
    }
    const QJsonObject control = value.toObject();
    Take(control, place, kFileName, &param->file_name);
    Take(control, place, kTimes, &param->repeat_times);
    Take(control, place, kDelay, &param->repeat_delay);
    Take(control, place, kSpeed, &param->speed_ratio);
    Take(control, place, kGap, &param->till_next_item_delay);
    WarnOfOtherKeys(control, place, {kFileName, kTimes, kDelay, kSpeed, kGap});
    if (param->repeat_times < 1) Warn(Join(place, kTimes), QStringLiteral("below 1 plays once"));
    if (!(param->speed_ratio > 0)) Warn(Join(place, kSpeed), QStringLiteral("not above 0; plays at speed 1"));
  }

  // Each leaves the field unchanged if the value is of another kind.
  void Take(const QJsonObject& json, const QString& path, QLatin1String key, QString* field) {
    const QJsonValue value = json.value(key);
    if (value.isString()) *field = value.toString();
    if (!value.isString()) WarnOfKind(path, key, value, QStringLiteral("a text"));
  }

  void Take(const QJsonObject& json, const QString& path, QLatin1String key, double* field) {
    const QJsonValue value = json.value(key);
    if (value.isDouble()) *field = value.toDouble();
    if (!value.isDouble()) WarnOfKind(path, key, value, QStringLiteral("a number"));
  }

  void Take(const QJsonObject& json, const QString& path, QLatin1String key, int* field) {
    const QJsonValue value = json.value(key);
    if (!value.isDouble()) return WarnOfKind(path, key, value, QStringLiteral("a number"));
    const double number = value.toDouble();
    *field = value.toInt();
    if (number != std::trunc(number))
      return Warn(Join(path, key), QStringLiteral("a number with a fraction reads as 0"));
    if (number != *field) Warn(Join(path, key), QStringLiteral("a number beyond 32 bits reads as 0"));
  }

  void WarnOfKind(const QString& path, QLatin1String key, const QJsonValue& value, const QString& kind) {
    if (value.isUndefined()) return;
    Warn(Join(path, key), QStringLiteral("%1 where %2 belongs; ignored").arg(WithArticle(value), kind));
  }

  void WarnOfOtherKeys(const QJsonObject& json, const QString& path, std::initializer_list<QLatin1String> known) {
    for (auto it = json.begin(); it != json.end(); ++it) {
      bool is_known = false;
      for (const QLatin1String key : known) is_known = is_known || it.key() == key;
      if (!is_known) Warn(Join(path, it.key()), QStringLiteral("ignored: there is no such key here"));
    }
  }

  RecordFile record_;
};

}  // namespace

// A pipe blocks its reader and can be read only once, but the library reads the file again.
QString RecordRefusal(const QString& name) {
  const QString problem = NoFileProblem(name);
  if (!problem.isEmpty() || QFileInfo(name).size() <= kMostRecordBytes) return problem;
  return QStringLiteral("longer than %1 bytes").arg(kMostRecordBytes);
}

RecordFile ReadRecordFile(const QString& name) {
  const ProgressLine progress(QStringLiteral("reading ") + name);
  return RecordReader().Read(name);
}

}  // namespace tavi
