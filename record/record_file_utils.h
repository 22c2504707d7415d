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

// All reading and writing of record files. Stateless: any thread may call it; files are not locked.
//
// Readers report nothing. A value that is absent or of another JSON type leaves its field unchanged, and a number with
// a fraction reads as the int 0. A reader with a null pointer does nothing.
class RecordFileUtils {
 public:
  static RecordFileUtils* GetInstance();
  virtual ~RecordFileUtils() = default;

  // ---- Reading ----
  // The file's JSON; an empty object for a file that cannot be read, that is invalid, or that is not an object.
  QJsonObject LoadJsonObject(const QString& path);
  // Returns false, with `info` unchanged, if the file has no header.
  bool GetRecordInfo(const QString& file, RecordInfo* info);
  // The names in the start marker; missing ones leave their output unchanged. Does not return for a file whose first
  // action has no data.
  void GetScriptAppAndPackage(const QString& file, QString& app, QString& package);
  // Fills `context` with the header and the actions. False if either is missing.
  bool LoadRecord(const QString& file, ReplayContext* context);

  // Null if the object has no list, or if an item of it has none; the list of a single record is never null.
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
  // 0: written; 1: nothing worth saving, no file is changed; 2: the file cannot be opened for writing.
  int SaveRecord(const QString& package_name, const QString& file, const QList<RecordAction*>& actions);
  // Sets create_time to now, and preserves everything else, including unknown keys. Does not catch the JSON parser's
  // exceptions; the file is unchanged then.
  void UpdateRecordTimestamp(const QString& path);
  // Writes the records in `params`, in order, as one. False if one of them cannot be read, or if the target cannot be
  // written; the target is unchanged then.
  bool MergeRecord(const QString& file, const QVector<MergeParam>& params);

 private:
  RecordFileUtils() = default;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_FILE_UTILS_H_
