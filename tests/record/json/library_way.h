// How the JSON libraries read and write a record: the reference for all other code that reads and writes records.
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

// Reads the bytes as a record in every way, through windows of this many bytes. Returns the differences from the
// library's result; empty if there are none. Adds 1 to `read_count` if the library was not needed.
std::string DifferenceInReading(const QByteArray& bytes, int window_bytes, int* read_count);

// Checks the bytes as a source of copies, and those that both libraries write for them. Returns the differences from
// reading and writing; adds 1 to `copied_count` for each that can be copied.
std::string DifferenceInCopying(const QByteArray& bytes, int window_bytes, int* copied_count);
// The same file, this many times, as one record by the library. Empty if one of them is not a record.
QByteArray MergedByLibrary(const QVector<MergeParam>& params, qint64 create_time);
// The document {"actions": [...], "info": {...}} as the library writes it.
QByteArray WrittenByLibrary(const QJsonObject& info, const QList<RecordAction*>& actions);

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_JSON_LIBRARY_WAY_H_
