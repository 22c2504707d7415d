// How instances of one user find each other.
#ifndef HOST_MIRROR_MIRROR_ADDRESS_H_
#define HOST_MIRROR_MIRROR_ADDRESS_H_

#include <QString>

class QLocalSocket;

namespace tavi {

// The error in a name to listen under, or an empty string: a name is a word of letters, digits, "-" and "_", so that it
// can refer to no file other than its socket.
QString MirrorNameProblem(const QString& name);

// The address of the local socket with this name. Sockets are in a folder that only the user can enter, which is
// created on demand; empty if there can be none.
QString MirrorAddressOf(const QString& name);

// Whether the other end of a connection is a program of this user.
bool IsOfThisUser(const QLocalSocket& socket);

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_ADDRESS_H_
