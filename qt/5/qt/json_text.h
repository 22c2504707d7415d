// Serializes JSON documents: Qt 5.
#ifndef QT_5_QT_JSON_TEXT_H_
#define QT_5_QT_JSON_TEXT_H_

#include <QByteArray>
#include <QJsonDocument>

namespace qt {

inline QByteArray JsonText(const QJsonDocument& document, QJsonDocument::JsonFormat format = QJsonDocument::Indented) {
  return document.toJson(format);
}

}  // namespace qt

#endif  // QT_5_QT_JSON_TEXT_H_
