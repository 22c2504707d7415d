// What the JSON library makes of single values.
#ifndef RECORD_JSON_LIBRARY_JSON_H_
#define RECORD_JSON_LIBRARY_JSON_H_

#include <string_view>

#include <QByteArray>
#include <QJsonValue>

namespace taviinputmanager::library_json {

// A value of a document; undefined where the library refuses it.
QJsonValue Read(std::string_view value);
// The same of a text without its quotation marks.
QJsonValue ReadText(std::string_view text);
// In one line.
QByteArray Write(const QJsonValue& value);
// Whether that is what is written of it when it has been read.
bool IsWrittenSo(std::string_view value);

}  // namespace taviinputmanager::library_json

#endif  // RECORD_JSON_LIBRARY_JSON_H_
