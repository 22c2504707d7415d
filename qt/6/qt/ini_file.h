// Settings in a file: Qt 6.
#ifndef QT_6_QT_INI_FILE_H_
#define QT_6_QT_INI_FILE_H_

#include <QSettings>

namespace qt {

// The programs of both Qts share such a file. It is in UTF-8; text that Qt 5 has escaped is read as well.
class IniFile : public QSettings {
 public:
  explicit IniFile(const QString& file) : QSettings(file, IniFormat) {}
};

}  // namespace qt

#endif  // QT_6_QT_INI_FILE_H_
