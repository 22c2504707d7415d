#ifndef HOST_PLAY_RIGHTS_ADVICE_H_
#define HOST_PLAY_RIGHTS_ADVICE_H_

#include <QString>
#include <QStringList>

namespace tavi {

// The group that can read input devices, and that the udev rule of the Debian package lets create some.
constexpr char kDeviceGroup[] = "input";

// The permissions that a player lacks, with the commands that grant them, for display; empty if nothing is missing.
// `unreadable` are devices that cannot be opened for lack of permissions; `needs_uinput`: devices are created here.
QString RightsAdvice(const QStringList& unreadable, bool needs_uinput);

}  // namespace tavi

#endif  // HOST_PLAY_RIGHTS_ADVICE_H_
