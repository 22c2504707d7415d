// The keys that have names, as data.
#ifndef KEYMAPMANAGER_KEYS_KEY_TABLE_H_
#define KEYMAPMANAGER_KEYS_KEY_TABLE_H_

#include <QString>

namespace tavikeymapmanager {

// A key of the keyboard.
struct KeyboardKeyRow {
  int scancode;     // Windows scan code, set 1; the extended bit is 0x100
  int virtual_key;  // Windows virtual key code
  const char* name;
  const char* alias;  // a second spelling that files may use, or null
};

// A button or wheel direction of the mouse.
struct MouseKeyRow {
  int code;  // Qt::MouseButton value, 548 or 549; both codes of the key
  const char* name;
};

// A button, hat direction or stick of a gamepad.
struct PadKeyRow {
  QString text;  // the host's name, which is the key's text
  QString name;  // the text after `Pad `
};

// Scan codes have nine bits.
constexpr int kScancodeCount = 512;
constexpr int kExtraMouseButtonCount = 24;

template <typename Row>
struct RowRange {
  const Row* begin() const { return first; }
  const Row* end() const { return last; }

  const Row* first;
  const Row* last;
};

// Each key once, without duplicate scan codes.
RowRange<KeyboardKeyRow> KeyboardKeys();
// Without the extra buttons, whose names are numbered: `Mouse Side 1` is the first.
RowRange<MouseKeyRow> MouseKeys();
RowRange<PadKeyRow> PadKeys();

// The Qt::MouseButton value of `Mouse Side <number>`, number from 1 to kExtraMouseButtonCount.
constexpr int ExtraMouseButton(int number) { return 8 << (number - 1); }

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYS_KEY_TABLE_H_
