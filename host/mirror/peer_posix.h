#ifndef HOST_MIRROR_PEER_POSIX_H_
#define HOST_MIRROR_PEER_POSIX_H_

namespace tavi {

// Whether the other end of a connected Unix socket belongs to a program of this user, as the kernel says.
bool IsPeerOfThisUser(int file);

}  // namespace tavi

#endif  // HOST_MIRROR_PEER_POSIX_H_
