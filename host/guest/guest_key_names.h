#ifndef HOST_GUEST_GUEST_KEY_NAMES_H_
#define HOST_GUEST_GUEST_KEY_NAMES_H_

#include <QString>

namespace tavi {

// A display name for a key of the guest: the name of the key or mouse button that produces it, or "Key 200".
QString NameOfGuestKey(int code);

}  // namespace tavi

#endif  // HOST_GUEST_GUEST_KEY_NAMES_H_
