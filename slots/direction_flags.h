// Which of four direction keys are held.
#ifndef SLOTS_DIRECTION_FLAGS_H_
#define SLOTS_DIRECTION_FLAGS_H_

#include <QtGlobal>

namespace taviinputmanager {

// Direction numbers.
enum Direction : int { kDirectionUp = 1, kDirectionDown = 2, kDirectionLeft = 3, kDirectionRight = 4 };

// One word for each axis. kPositive is right or down, kNegative left or up; both bits mean that both keys are held, and
// such an axis does not move.
struct DirectionFlags {
  static constexpr quint32 kPositive = 1;
  static constexpr quint32 kNegative = 16;
  static constexpr quint32 kBoth = kPositive | kNegative;

  quint32 x = 0;
  quint32 y = 0;

  bool IsAny() const { return x != 0 || y != 0; }

  // Other numbers than these four change nothing.
  void Set(int direction, bool pressed) {
    switch (direction) {
      case kDirectionUp: return SetBit(&y, kNegative, pressed);
      case kDirectionDown: return SetBit(&y, kPositive, pressed);
      case kDirectionLeft: return SetBit(&x, kNegative, pressed);
      case kDirectionRight: return SetBit(&x, kPositive, pressed);
      default: return;
    }
  }

  // 1, -1, or 0 for an axis for which no key or both keys are held.
  static int Sign(quint32 word) { return word == kPositive ? 1 : word == kNegative ? -1 : 0; }

 private:
  static void SetBit(quint32* word, quint32 bit, bool on) { *word = on ? *word | bit : *word & ~bit; }
};

}  // namespace taviinputmanager

#endif  // SLOTS_DIRECTION_FLAGS_H_
