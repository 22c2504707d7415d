#include "record/json/library_json.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "qt/json_text.h"

namespace taviinputmanager::library_json {
namespace {

QByteArray BytesOf(std::string_view text) {
  return QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
}

}  // namespace

// A document is a list or an object, so each value is put in a list of its own.

QJsonValue Read(std::string_view value) { return QJsonDocument::fromJson('[' + BytesOf(value) + ']').array().at(0); }

QJsonValue ReadText(std::string_view text) {
  return QJsonDocument::fromJson("[\"" + BytesOf(text) + "\"]").array().at(0);
}

QByteArray Write(const QJsonValue& value) {
  const QByteArray list = qt::JsonText(QJsonDocument(QJsonArray{value}), QJsonDocument::Compact);
  return list.mid(1, list.size() - 2);
}

bool IsWrittenSo(std::string_view value) { return Write(Read(value)) == BytesOf(value); }

}  // namespace taviinputmanager::library_json
