#ifndef HOST_TARGET_OUTGOING_LINE_H_
#define HOST_TARGET_OUTGOING_LINE_H_

#include <QByteArray>

#include "host/guest/guest_line.h"

namespace tavi {

// A line on its way to targets.
struct OutgoingLine {
  // Of what the library's send functions get, end included.
  explicit OutgoingLine(const QByteArray& bytes);

  QByteArray bytes;
  bool is_text = false;  // of no display, and with no more than its bytes
  int display = 0;
  GuestLine line;
};

}  // namespace tavi

#endif  // HOST_TARGET_OUTGOING_LINE_H_
