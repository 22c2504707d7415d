// A socket that front ends connect to.
#ifndef GUEST_PROGRAM_LISTENER_H_
#define GUEST_PROGRAM_LISTENER_H_

#include <string>
#include <sys/types.h>

#include "guest/program/listen_address.h"

namespace taviguest {

// Not bound to a thread. A socket file is for its owner alone (0600), and is removed with the object, unless another
// has taken its place.
class Listener {
 public:
  Listener() = default;
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;
  ~Listener();

  // A port is one of this machine's loopback, which no other machine reaches. A socket file that is there already is
  // replaced when it is this user's and nobody listens any more; nothing else is. What went wrong, for people, or
  // nothing.
  std::string Open(const ListenAddress& address);

  // Becomes readable when a front end connects.
  int file() const { return file_; }

  // "tcp:127.0.0.1:5555", "unix:/run/user/1000/guest".
  const std::string& place() const { return place_; }

  // The connection, which does not block; -1 when the front end is gone again.
  int Accept() const;

 private:
  std::string OpenPort(int port);
  std::string OpenPath(const std::string& path);

  int file_ = -1;
  std::string place_;
  std::string path_;  // of the file that is ours; empty: none
  dev_t device_ = 0;  // which that is
  ino_t inode_ = 0;
};

}  // namespace taviguest

#endif  // GUEST_PROGRAM_LISTENER_H_
