// Where instances of one user find each other.
#ifndef HOST_MIRROR_MIRROR_ADDRESS_H_
#define HOST_MIRROR_MIRROR_ADDRESS_H_

#include <QString>

class QLocalSocket;

namespace tavi {

// What is wrong with a name to listen under, or nothing: it is a word of letters, digits, "-" and "_". So it leads to
// no file but those that are made for it.
QString MirrorNameProblem(const QString& name);

// What a local socket connects to for this name. Sockets lie in a folder that only the user can enter, which is made on
// demand; empty where there can be none.
QString MirrorAddressOf(const QString& name);

// Whether the other end of a connection is a program of this user.
bool IsOfThisUser(const QLocalSocket& socket);

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_ADDRESS_H_
