// What the JSON libraries make of a record: the truth, for all that reads and writes records in another way.
#ifndef TESTS_RECORD_JSON_LIBRARY_WAY_H_
#define TESTS_RECORD_JSON_LIBRARY_WAY_H_

#include <string>

#include <QByteArray>
#include <QList>

class QJsonObject;

namespace taviinputmanager {

struct RecordAction;

// Reads the bytes as a record in every way there is, through windows of so many bytes. What differs from the library's
// reading of them; empty where nothing does. Adds 1 to `read_count` where the library was not needed.
std::string DifferenceInReading(const QByteArray& bytes, int window_bytes, int* read_count);

// The document {"actions": [...], "info": {...}} as the library writes it.
QByteArray WrittenByLibrary(const QJsonObject& info, const QList<RecordAction*>& actions);

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_JSON_LIBRARY_WAY_H_
