// Numbers in texts: Qt 6.
#ifndef QT_6_QT_NUMBERS_H_
#define QT_6_QT_NUMBERS_H_

#include <QLocale>
#include <QStringView>

namespace qt {

// A whole number in a text, blanks around it allowed. 0 and not `ok` for any other text.
//
// The text's own toInt takes what follows a zero character for nothing, and knows neither the minus sign U+2212 nor
// blanks beyond ASCII. The locale "C" still reads as Qt 5 does.
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
