#ifndef HOST_PLAY_SCREEN_SIZE_H_
#define HOST_PLAY_SCREEN_SIZE_H_

#include <QSize>
#include <QString>

namespace tavi {

// The screen of this machine, as the kernel knows it: the first one that is on, at its preferred size, otherwise the
// console's. Empty if there is none. `system` is the folder of the kernel's device information, another one in tests.
QSize ScreenSize(const QString& system = QStringLiteral("/sys"));

}  // namespace tavi

#endif  // HOST_PLAY_SCREEN_SIZE_H_
