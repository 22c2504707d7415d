// How the JSON library of timestamps reads and writes documents and values.
#ifndef RECORD_JSON_POCO_JSON_H_
#define RECORD_JSON_POCO_JSON_H_

#include <optional>
#include <string>

#include <QtGlobal>

namespace taviinputmanager::poco_json {

// Whether a value of a document is written in this form after reading it.
bool IsWrittenSo(const std::string& value);
// The document with this creation time in its header; nothing if it has no header. Does not catch the parser's
// exceptions.
std::optional<std::string> Stamped(const std::string& document, qint64 create_time);

}  // namespace taviinputmanager::poco_json

#endif  // RECORD_JSON_POCO_JSON_H_
