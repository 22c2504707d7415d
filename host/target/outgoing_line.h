#ifndef HOST_TARGET_OUTGOING_LINE_H_
#define HOST_TARGET_OUTGOING_LINE_H_

#include <QByteArray>

#include "host/guest/guest_line.h"

namespace tavi {

// A queued line for targets.
struct OutgoingLine {
  // From the data of the library's send functions, with its end.
  explicit OutgoingLine(const QByteArray& bytes);

  QByteArray bytes;
  bool is_text = false;  // without a display prefix, and with nothing but its bytes
  int display = 0;
  GuestLine line;
};

}  // namespace tavi

#endif  // HOST_TARGET_OUTGOING_LINE_H_
