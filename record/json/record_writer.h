// Writes a record file incrementally.
#ifndef RECORD_JSON_RECORD_WRITER_H_
#define RECORD_JSON_RECORD_WRITER_H_

#include <QList>

class QIODevice;
class QJsonObject;

namespace taviinputmanager {

struct RecordAction;

// Writes the document {"actions": [...], "info": {...}} like QJsonDocument::toJson, without building a tree of the
// actions. False if the device does not accept everything.
bool WriteRecord(const QJsonObject& info, const QList<RecordAction*>& actions, QIODevice* target);

}  // namespace taviinputmanager

#endif  // RECORD_JSON_RECORD_WRITER_H_
