// Numbers in texts: Qt 5.
#ifndef QT_5_QT_NUMBERS_H_
#define QT_5_QT_NUMBERS_H_

#include <QStringView>

namespace qt {

// A whole number in a text, blanks around it allowed. 0 and not `ok` for any other text.
inline int ToInt(QStringView text, bool* ok = nullptr) { return text.toInt(ok); }

}  // namespace qt

#endif  // QT_5_QT_NUMBERS_H_
