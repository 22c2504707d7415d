#ifndef HOST_EDITOR_KEY_CAPTURE_H_
#define HOST_EDITOR_KEY_CAPTURE_H_

#include <QString>

class QKeyEvent;

namespace tavi {

// Turns what the user presses into a binding: one key, or a chord if a second one is pressed while the first is held. A
// single key is complete when it is released, since it may still become a chord.
class KeyCapture {
 public:
  explicit KeyCapture(bool takes_chords = false) : takes_chords_(takes_chords) {}

  // Key names as in keymaps. Each call returns the binding once it is complete, otherwise nothing; further input is
  // ignored.
  QString Press(const QString& name);
  QString Release(const QString& name);

 private:
  bool takes_chords_;
  QString held_;
};

// The names of what was pressed; empty for what no keymap can name.
QString NameOfKeyEvent(const QKeyEvent& event);
QString NameOfMouseButton(int button);
// `text` is the host's name of the button.
QString NameOfPadButton(const QString& text);

}  // namespace tavi

#endif  // HOST_EDITOR_KEY_CAPTURE_H_
