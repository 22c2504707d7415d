// A socket for front ends.
#ifndef GUEST_PROGRAM_LISTENER_H_
#define GUEST_PROGRAM_LISTENER_H_

#include <string>
#include <sys/types.h>

#include "guest/program/listen_address.h"

namespace taviguest {

// Not bound to a thread. A socket file is only accessible to its owner (0600), and is removed with the object, unless
// another program has replaced it.
class Listener {
 public:
  Listener() = default;
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;
  ~Listener();

  // A port is on the loopback interface, which no other machine can reach. An existing socket file is replaced if it
  // belongs to this user and no program listens on it; any other file is an error. Returns the error, for display, or
  // an empty string.
  std::string Open(const ListenAddress& address);

  // Becomes readable when a front end connects.
  int file() const { return file_; }

  // "tcp:127.0.0.1:5555", "unix:/run/user/1000/guest".
  const std::string& place() const { return place_; }

  // The connection, which does not block; -1 if the front end has disconnected already.
  int Accept() const;

 private:
  std::string OpenPort(int port);
  std::string OpenPath(const std::string& path);

  int file_ = -1;
  std::string place_;
  std::string path_;  // our socket file; empty: none
  dev_t device_ = 0;  // identifies that file
  ino_t inode_ = 0;
};

}  // namespace taviguest

#endif  // GUEST_PROGRAM_LISTENER_H_
