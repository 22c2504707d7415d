// Where the lines for the guest go, as a person writes it.
#ifndef HOST_TARGET_TARGET_ADDRESS_H_
#define HOST_TARGET_TARGET_ADDRESS_H_

#include <QString>

namespace tavi {

struct TargetAddress {
  enum class Kind {
    kCommand,     // exec:COMMAND    the standard input of what /bin/sh makes of COMMAND
    kSocketFile,  // unix:PATH       whoever listens on this socket file
    kTcp,         // tcp:HOST:PORT   whoever listens there; tcp:[::1]:PORT for addresses with colons
    kUinput,      // uinput          input devices of this machine's kernel
  };

  Kind kind = Kind::kUinput;
  QString text;   // as it was written
  QString place;  // the command, the absolute path, the host; empty for kUinput
  quint16 port = 0;
  bool may_be_remote = false;  // false: what answers on another machine is left at once
};

struct ParsedTarget {
  TargetAddress address;
  QString problem;  // for people; empty when `address` is one
};

// A host that is not this machine is a problem unless `allow_remote`: anybody on the way could read and change what is
// typed. So is a kind of target that this build cannot make.
ParsedTarget ParseTarget(const QString& text, bool allow_remote);

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_ADDRESS_H_
