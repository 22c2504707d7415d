// Settings in a file: Qt 5.
#ifndef QT_5_QT_INI_FILE_H_
#define QT_5_QT_INI_FILE_H_

#include <QSettings>

namespace qt {

// The programs of both Qts share such a file, so it is in UTF-8, as with Qt 6. Text that Qt 5 has escaped is read as
// well.
class IniFile : public QSettings {
 public:
  explicit IniFile(const QString& file) : QSettings(file, IniFormat) { setIniCodec("UTF-8"); }
};

}  // namespace qt

#endif  // QT_5_QT_INI_FILE_H_
