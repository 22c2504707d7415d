// Serializes JSON documents: Qt 6.
#ifndef QT_6_QT_JSON_TEXT_H_
#define QT_6_QT_JSON_TEXT_H_

#include <cmath>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QLocale>

namespace qt {

// Writes a document like Qt 5. Qt 6 writes integers from 2^53 on differently: those it read with more digits, those it
// computed with an exponent. It also writes small numbers of one digit with an exponent.
class JsonWriter {
 public:
  static QByteArray TextOf(const QJsonDocument& document, QJsonDocument::JsonFormat format) {
    if (document.isNull()) return {};
    JsonWriter writer(format);
    if (document.isObject()) {
      writer.Add(document.object(), 0);
    } else {
      writer.Add(document.array(), 0);
    }
    if (!writer.is_compact_) writer.text_ += '\n';
    return writer.text_;
  }

 private:
  explicit JsonWriter(QJsonDocument::JsonFormat format) : is_compact_(format == QJsonDocument::Compact) {}

  void Add(const QJsonValue& value, int depth) {
    switch (value.type()) {
      case QJsonValue::Double: return AddNumber(value.toDouble());
      case QJsonValue::Array: return Add(value.toArray(), depth);
      case QJsonValue::Object: return Add(value.toObject(), depth);
      default: return AddPlain(value);
    }
  }
  void Add(const QJsonArray& array, int depth) {
    Open('[');
    for (qsizetype i = 0; i < array.size(); ++i) {
      BeginElement(i == 0, depth);
      Add(array.at(i), depth + 1);
    }
    Close(']', array.isEmpty(), depth);
  }
  void Add(const QJsonObject& object, int depth) {
    Open('{');
    for (auto it = object.begin(); it != object.end(); ++it) {
      BeginElement(it == object.begin(), depth);
      AddPlain(it.key());
      text_ += is_compact_ ? ":" : ": ";
      Add(it.value(), depth + 1);
    }
    Close('}', object.isEmpty(), depth);
  }
  // Values that both versions write alike. Wrapped in an array, because a document is an array or an object.
  void AddPlain(const QJsonValue& value) {
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    text_ += list.mid(1, list.size() - 2);
  }
  // The shortest digits that read back as the same number; without an exponent from 0.0001 up to 2^64.
  void AddNumber(double number) {
    const double size = std::fabs(number);
    const bool has_exponent = size < 1e-4 || size >= 18446744073709551616.0;
    if (size != 0 && (has_exponent || std::isnan(size))) return AddPlain(number);
    text_ += QByteArray::number(number, 'f', QLocale::FloatingPointShortest);
  }

  void Open(char bracket) {
    text_ += bracket;
    if (!is_compact_) text_ += '\n';
  }
  void BeginElement(bool is_first, int depth) {
    if (!is_first) text_ += is_compact_ ? "," : ",\n";
    Indent(depth + 1);
  }
  void Close(char bracket, bool is_empty, int depth) {
    if (!is_compact_ && !is_empty) text_ += '\n';
    Indent(depth);
    text_ += bracket;
  }
  void Indent(int depth) {
    if (!is_compact_) text_ += QByteArray(4 * depth, ' ');
  }

  const bool is_compact_;
  QByteArray text_;
};

inline QByteArray JsonText(const QJsonDocument& document, QJsonDocument::JsonFormat format = QJsonDocument::Indented) {
  return JsonWriter::TextOf(document, format);
}

}  // namespace qt

#endif  // QT_6_QT_JSON_TEXT_H_
