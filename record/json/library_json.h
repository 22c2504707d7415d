// How the JSON library reads and writes single values.
#ifndef RECORD_JSON_LIBRARY_JSON_H_
#define RECORD_JSON_LIBRARY_JSON_H_

#include <string_view>

#include <QByteArray>
#include <QJsonValue>

namespace taviinputmanager::library_json {

// A value of a document; undefined if the library rejects it.
QJsonValue Read(std::string_view value);
// The same for a text without its quotation marks.
QJsonValue ReadText(std::string_view text);
// On one line.
QByteArray Write(const QJsonValue& value);
// Whether the library writes the value in this form after reading it.
bool IsWrittenSo(std::string_view value);

}  // namespace taviinputmanager::library_json

#endif  // RECORD_JSON_LIBRARY_JSON_H_
