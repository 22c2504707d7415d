// A merged record of files whose lists are copied.
#ifndef RECORD_JSON_MERGED_WRITER_H_
#define RECORD_JSON_MERGED_WRITER_H_

#include <vector>

#include <QJsonArray>
#include <QJsonObject>

#include "record/json/record_source.h"

class QIODevice;

namespace taviinputmanager {

// Writes the document {"info": ..., "merged_actions": [...]} as QJsonDocument::toJson does, without trees of the lists.
class MergedWriter {
 public:
  // An item that is played by this control. False, and nothing added, where the library has to merge: the file is not
  // laid out as it writes, or lacks what a record needs.
  bool Add(const QString& file, const QJsonObject& control);
  // The header of the item that was added last.
  QJsonObject LastInfo() const { return sources_.back().Info(); }

  // False when the device does not take all, or when a file has changed since it was added.
  bool Write(const QJsonObject& info, QIODevice* target);
  bool HasChangedSource() const;

 private:
  QJsonArray items_;  // with empty lists
  std::vector<RecordSource> sources_;
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_MERGED_WRITER_H_
