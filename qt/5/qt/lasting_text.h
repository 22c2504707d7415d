// Texts with the lifetime of the process: Qt 5.
#ifndef QT_5_QT_LASTING_TEXT_H_
#define QT_5_QT_LASTING_TEXT_H_

#include <cstddef>
#include <cstring>
#include <new>

#include <QString>

namespace qt {

// A copy of `text` that is never freed, like a literal: copies of it count no references.
inline QString Lasting(const QString& text) {
  const auto length = static_cast<std::size_t>(text.size());
  void* const block = ::operator new(sizeof(QStringData) + (length + 1) * sizeof(QChar));
  auto* const data = new (block) QStringData{Q_STATIC_STRING_DATA_HEADER_INITIALIZER(text.size())};
  std::memcpy(data->data(), text.constData(), (length + 1) * sizeof(QChar));
  return QString(QStringDataPtr{data});
}

}  // namespace qt

#endif  // QT_5_QT_LASTING_TEXT_H_
