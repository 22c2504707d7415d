// The lines of one contact, for EXPECT_WIRE.
#ifndef TESTS_SUPPORT_FINGER_LINES_H_
#define TESTS_SUPPORT_FINGER_LINES_H_

#include <QString>

namespace taviinputmanager {

class FingerLines {
 public:
  explicit FingerLines(int slot) : slot_(slot) {}

  QString At(int ms, int x, int y) const {
    return QStringLiteral("%1ms 1:SLOTPRESS:%2:%2:1:1:%3:%4").arg(ms).arg(slot_).arg(x).arg(y);
  }
  QString Up(int ms) const { return QStringLiteral("%1ms 1:SLOTRELEASE:%2").arg(ms).arg(slot_); }

 private:
  int slot_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_FINGER_LINES_H_
