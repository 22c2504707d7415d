// Numbers in texts: Qt 5.
#ifndef QT_5_QT_NUMBERS_H_
#define QT_5_QT_NUMBERS_H_

#include <QStringView>

namespace qt {

// Reads an integer, which may have blanks around it. For any other text returns 0 and sets `ok` to false.
inline int ToInt(QStringView text, bool* ok = nullptr) { return text.toInt(ok); }

// The same for any number. A number too large for a double is infinite, and `ok` false.
inline double ToDouble(QStringView text, bool* ok = nullptr) { return text.toDouble(ok); }

}  // namespace qt

#endif  // QT_5_QT_NUMBERS_H_
