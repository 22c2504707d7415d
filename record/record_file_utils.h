// Record files.
#ifndef RECORD_RECORD_FILE_UTILS_H_
#define RECORD_RECORD_FILE_UTILS_H_

#include <memory>

#include <QList>
#include <QVector>

#include "taviinputmanager/types.h"

class QJsonObject;
class QString;

namespace taviinputmanager {

class MergeRecordActions;
class RecordActions;
class SingleRecordActions;
struct RecordAction;
struct ReplayContext;

// Everything that reads or writes a record file. Stateless: any thread may call it; files are not locked.
//
// Readers are silent. A value that is absent or of another JSON type leaves its field as it is, and a number with a
// fraction reads as the int 0. A reader that is handed a null pointer does nothing.
class RecordFileUtils {
 public:
  static RecordFileUtils* GetInstance();
  virtual ~RecordFileUtils() = default;

  // ---- Reading ----
  // The file's JSON; an empty object for a file that cannot be read, or that is broken, or that is no object.
  QJsonObject LoadJsonObject(const QString& path);
  // False, with `info` untouched, when the file has no header.
  bool GetRecordInfo(const QString& file, RecordInfo* info);
  // The names in the start marker; what is missing leaves its output as it is. Does not return for a file whose first
  // action has no data.
  void GetScriptAppAndPackage(const QString& file, QString& app, QString& package);
  // Fills `context` with the header and the actions. False when one of them is missing.
  bool LoadRecord(const QString& file, ReplayContext* context);

  // Null when the object has no list, or when an item of it has none; that of a single record is never null.
  std::shared_ptr<RecordActions> ReadRecordActions(const QJsonObject& json);
  std::shared_ptr<SingleRecordActions> ReadSingleRecordActions(const QJsonObject& json);
  std::shared_ptr<MergeRecordActions> ReadMergeRecordActions(const QJsonObject& json);
  void ReadControl(const QJsonObject& json, const std::shared_ptr<RecordActions>& actions);
  void ReadControlParam(const QJsonObject& json, MergeParam* param);
  void ReadRecordInfo(const QJsonObject& json, RecordInfo* info);
  void ReadAction(const QJsonObject& json, RecordAction* action);

  // ---- Writing ----
  QJsonObject WriteRecordInfo(const RecordInfo& info);
  QJsonObject WriteControlParam(const MergeParam& param);
  QJsonObject WriteAction(const RecordAction& action);
  // 0: written; 1: nothing that is worth a file, none is touched; 2: the file cannot be opened for writing.
  int SaveRecord(const QString& package_name, const QString& file, const QList<RecordAction*>& actions);
  // Sets create_time to now, and keeps all else, also keys of others. Lets the exceptions of the JSON parser through;
  // the file is untouched then.
  void UpdateRecordTimestamp(const QString& path);
  // Writes the records that `params` name, in order, as one. False when one of them cannot be read, or the target not
  // be written; the target is untouched then.
  bool MergeRecord(const QString& file, const QVector<MergeParam>& params);

 private:
  RecordFileUtils() = default;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_FILE_UTILS_H_
