#include "host/target/outgoing_line.h"

namespace tavi {

OutgoingLine::OutgoingLine(const QByteArray& bytes) : bytes(bytes), is_text(bytes.endsWith('\0')) {
  if (is_text) return;
  const AddressedLine addressed = SplitDisplay(QString::fromUtf8(bytes.chopped(1)));
  display = addressed.display;
  line = ParseGuestLine(addressed.line);
}

}  // namespace tavi
