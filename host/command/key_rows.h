// Every key that a keymap can name, with its codes elsewhere.
#ifndef HOST_COMMAND_KEY_ROWS_H_
#define HOST_COMMAND_KEY_ROWS_H_

#include <QString>
#include <QStringList>
#include <QVector>

namespace tavi {

// 0, or an empty text, if the key has no such code.
struct KeyRow {
  QString name;         // in a keymap
  QStringList aliases;  // other spellings in a keymap
  QString device;       // the device of the key's record: "keyboard", "mouse" or "joystick"
  int scancode = 0;     // Windows, set 1, the extended bit as 0x100
  int virtual_key = 0;  // Windows
  int linux_code = 0;   // evdev
  int x11_code = 0;     // of a native event under X11
  int mouse_code = 0;   // Qt::MouseButton, 548 or 549
  QString qt_key;       // of Qt::Key or Qt::MouseButton, on a US layout
  QString pad_text;     // the host's name of a gamepad button or stick
};

// Keyboard, mouse and wheel, then the usual gamepad names.
QVector<KeyRow> AllKeyRows();

}  // namespace tavi

#endif  // HOST_COMMAND_KEY_ROWS_H_
