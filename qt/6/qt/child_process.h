// Child processes that run code of their own before the program: Qt 6.
#ifndef QT_6_QT_CHILD_PROCESS_H_
#define QT_6_QT_CHILD_PROCESS_H_

#include <QProcess>

namespace qt {

// Posix only. Its function setChildProcessModifier does not exist in Qt 5.
using ChildProcess = QProcess;

}  // namespace qt

#endif  // QT_6_QT_CHILD_PROCESS_H_
