// A record file as bytes, written piece by piece.
#ifndef RECORD_JSON_RECORD_WRITER_H_
#define RECORD_JSON_RECORD_WRITER_H_

#include <QList>

class QIODevice;
class QJsonObject;

namespace taviinputmanager {

struct RecordAction;

// Writes the document {"actions": [...], "info": {...}} as QJsonDocument::toJson does, without a tree of the actions.
// False when the device does not take all.
bool WriteRecord(const QJsonObject& info, const QList<RecordAction*>& actions, QIODevice* target);

}  // namespace taviinputmanager

#endif  // RECORD_JSON_RECORD_WRITER_H_
