// What the JSON library of timestamps makes of documents and values.
#ifndef RECORD_JSON_POCO_JSON_H_
#define RECORD_JSON_POCO_JSON_H_

#include <optional>
#include <string>

#include <QtGlobal>

namespace taviinputmanager::poco_json {

// Whether a value of a document is written so when it has been read.
bool IsWrittenSo(const std::string& value);
// The document with this creation time in its header; nothing where it has no header. Lets the exceptions of the parser
// through.
std::optional<std::string> Stamped(const std::string& document, qint64 create_time);

}  // namespace taviinputmanager::poco_json

#endif  // RECORD_JSON_POCO_JSON_H_
