// Writes a merged record by copying the lists of its files.
#ifndef RECORD_JSON_MERGED_WRITER_H_
#define RECORD_JSON_MERGED_WRITER_H_

#include <vector>

#include <QJsonArray>
#include <QJsonObject>

#include "record/json/record_source.h"

class QIODevice;

namespace taviinputmanager {

// Writes the document {"info": ..., "merged_actions": [...]} like QJsonDocument::toJson, without building trees of the
// lists.
class MergedWriter {
 public:
  // Adds an item with this control. Returns false and adds nothing if the library must merge: the file does not have
  // the library's format, or lacks a part of a record.
  bool Add(const QString& file, const QJsonObject& control);
  // The header of the item that was added last.
  QJsonObject LastInfo() const { return sources_.back().Info(); }

  // False if the device does not accept everything, or if a file has changed since it was added.
  bool Write(const QJsonObject& info, QIODevice* target);
  bool HasChangedSource() const;

 private:
  QJsonArray items_;  // with empty lists
  std::vector<RecordSource> sources_;
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_MERGED_WRITER_H_
