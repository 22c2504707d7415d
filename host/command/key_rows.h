// Every key that a keymap can name, with the codes that it has elsewhere.
#ifndef HOST_COMMAND_KEY_ROWS_H_
#define HOST_COMMAND_KEY_ROWS_H_

#include <QString>
#include <QStringList>
#include <QVector>

namespace tavi {

// 0, or an empty text, where the key has no such code.
struct KeyRow {
  QString name;         // as a keymap writes it
  QStringList aliases;  // other spellings that a keymap may use
  QString device;       // "keyboard", "mouse" or "joystick", as a keymap's record holds it
  int scancode = 0;     // Windows, set 1, the extended bit as 0x100
  int virtual_key = 0;  // Windows
  int linux_code = 0;   // evdev
  int x11_code = 0;     // of a native event under X11
  int mouse_code = 0;   // Qt::MouseButton, 548 or 549
  QString qt_key;       // of Qt::Key or Qt::MouseButton, where a US layout is set
  QString pad_text;     // the host's name of a gamepad's button or stick
};

// Keyboard, mouse and wheel, then the usual names of gamepads.
QVector<KeyRow> AllKeyRows();

}  // namespace tavi

#endif  // HOST_COMMAND_KEY_ROWS_H_
