// Numbers in texts: Qt 6.
#ifndef QT_6_QT_NUMBERS_H_
#define QT_6_QT_NUMBERS_H_

#include <QLocale>
#include <QStringView>

namespace qt {

// Reads like Qt 5. QStringView::toInt ignores everything after a NUL character, and accepts neither the minus sign
// U+2212 nor blanks outside ASCII; in 6.8, toDouble does not accept that sign either.
inline const QLocale& ReadingLocale() {
  static const QLocale locale = [] {
    QLocale c(QLocale::C);
    c.setNumberOptions(c.numberOptions() | QLocale::RejectGroupSeparator);
    return c;
  }();
  return locale;
}

// Reads an integer, which may have blanks around it. For any other text returns 0 and sets `ok` to false.
inline int ToInt(QStringView text, bool* ok = nullptr) { return ReadingLocale().toInt(text, ok); }

// The same for any number. A number too large for a double is infinite, and `ok` false.
inline double ToDouble(QStringView text, bool* ok = nullptr) {
  bool is_number = false;
  const double number = ReadingLocale().toDouble(text, &is_number);
  if (ok) *ok = is_number;
  return is_number || number != 0 ? number : 0;  // never -0 for a text that is no number
}

}  // namespace qt

#endif  // QT_6_QT_NUMBERS_H_
