// Record files.
#ifndef RECORD_RECORD_FILE_UTILS_H_
#define RECORD_RECORD_FILE_UTILS_H_

#include <QString>
#include <QVector>

#include "taviinputmanager/types.h"

namespace taviinputmanager {

class RecordFileUtils {
 public:
  static RecordFileUtils* GetInstance();

  bool GetRecordInfo(const QString& file, RecordInfo* info);
  void GetScriptAppAndPackage(const QString& file, QString& app, QString& package);
  bool MergeRecord(const QString& file, const QVector<MergeParam>& params);
  void UpdateRecordTimestamp(const QString& file);

 private:
  RecordFileUtils() = default;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_FILE_UTILS_H_
