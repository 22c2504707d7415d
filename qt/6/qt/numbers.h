// Numbers in texts: Qt 6.
#ifndef QT_6_QT_NUMBERS_H_
#define QT_6_QT_NUMBERS_H_

#include <QLocale>
#include <QStringView>

namespace qt {

// Reads an integer, which may have blanks around it. For any other text returns 0 and sets `ok` to false.
//
// QStringView::toInt ignores everything after a NUL character, and accepts neither the minus sign U+2212 nor blanks
// outside ASCII. The "C" locale still parses like Qt 5.
inline int ToInt(QStringView text, bool* ok = nullptr) {
  static const QLocale locale = [] {
    QLocale c(QLocale::C);
    c.setNumberOptions(c.numberOptions() | QLocale::RejectGroupSeparator);
    return c;
  }();
  return locale.toInt(text, ok);
}

}  // namespace qt

#endif  // QT_6_QT_NUMBERS_H_
