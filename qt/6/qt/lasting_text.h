// Texts with the lifetime of the process: Qt 6.
#ifndef QT_6_QT_LASTING_TEXT_H_
#define QT_6_QT_LASTING_TEXT_H_

#include <QString>

namespace qt {

// A copy of `text` that is never freed, like a literal: copies of it count no references.
inline QString Lasting(const QString& text) {
  const auto* const copy = new QString(text.constData(), text.size());  // of its own, and ends with a zero
  return QString::fromRawData(copy->constData(), copy->size());
}

}  // namespace qt

#endif  // QT_6_QT_LASTING_TEXT_H_
