// Where the lines for the guest go, in the format of the command line.
#ifndef HOST_TARGET_TARGET_ADDRESS_H_
#define HOST_TARGET_TARGET_ADDRESS_H_

#include <QString>

namespace tavi {

struct TargetAddress {
  enum class Kind {
    kCommand,     // exec:COMMAND    the standard input of what /bin/sh makes of COMMAND
    kSocketFile,  // unix:PATH       the program that listens on this socket file
    kTcp,         // tcp:HOST:PORT   the program that listens there; tcp:[::1]:PORT for addresses with colons
    kUinput,      // uinput          input devices of this machine's kernel
  };

  Kind kind = Kind::kUinput;
  QString text;   // as the user wrote it
  QString place;  // the command, the absolute path, the host; empty for kUinput
  quint16 port = 0;
  bool may_be_remote = false;  // false: a connection to another machine is closed at once
};

struct ParsedTarget {
  TargetAddress address;
  QString problem;  // for display; empty if `address` is valid
};

// A host on another machine is an error unless `allow_remote`, because anyone on the network path could read and change
// what is typed. So is a kind of target that this build does not support.
ParsedTarget ParseTarget(const QString& text, bool allow_remote);

}  // namespace tavi

#endif  // HOST_TARGET_TARGET_ADDRESS_H_
