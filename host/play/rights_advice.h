#ifndef HOST_PLAY_RIGHTS_ADVICE_H_
#define HOST_PLAY_RIGHTS_ADVICE_H_

#include <QString>
#include <QStringList>

namespace tavi {

// The group that may read input devices, and that the rule of udev in the Debian package lets make some.
constexpr char kDeviceGroup[] = "input";

// What a user lacks who wants to play, with the commands that give it, for people; empty where nothing is missing.
// `unreadable` are devices that cannot be opened because of their rights, `needs_uinput` whether devices are made here.
QString RightsAdvice(const QStringList& unreadable, bool needs_uinput);

}  // namespace tavi

#endif  // HOST_PLAY_RIGHTS_ADVICE_H_
