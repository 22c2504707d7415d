// What the JSON libraries make of a record: the truth, for all that reads and writes records in another way.
#ifndef TESTS_RECORD_JSON_LIBRARY_WAY_H_
#define TESTS_RECORD_JSON_LIBRARY_WAY_H_

#include <string>

#include <QByteArray>
#include <QList>
#include <QVector>

#include "taviinputmanager/types.h"

class QJsonObject;

namespace taviinputmanager {

struct RecordAction;

// Reads the bytes as a record in every way there is, through windows of so many bytes. What differs from the library's
// reading of them; empty where nothing does. Adds 1 to `read_count` where the library was not needed.
std::string DifferenceInReading(const QByteArray& bytes, int window_bytes, int* read_count);

// Checks the bytes as a source of copies, and those that both libraries make of them. What differs from reading and
// writing; adds 1 to `copied_count` for each that can be copied.
std::string DifferenceInCopying(const QByteArray& bytes, int window_bytes, int* copied_count);
// The same file, so many times, as one record by the library. Empty where one of them is none.
QByteArray MergedByLibrary(const QVector<MergeParam>& params, qint64 create_time);
// The document {"actions": [...], "info": {...}} as the library writes it.
QByteArray WrittenByLibrary(const QJsonObject& info, const QList<RecordAction*>& actions);

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_JSON_LIBRARY_WAY_H_
