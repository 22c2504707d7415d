#ifndef HOST_EDITOR_KEY_CAPTURE_H_
#define HOST_EDITOR_KEY_CAPTURE_H_

#include <QString>

class QKeyEvent;

namespace tavi {

// Makes the binding of what a person presses: one key, or a chord when a second one is pressed while the first is held.
// A key alone is taken when it comes up, since it may yet become a chord.
class KeyCapture {
 public:
  explicit KeyCapture(bool takes_chords = false) : takes_chords_(takes_chords) {}

  // Names as keymaps write them. Each gives the binding once it is complete, else nothing; the rest is left out.
  QString Press(const QString& name);
  QString Release(const QString& name);

 private:
  bool takes_chords_;
  QString held_;
};

// The names of what is pressed; empty for what no keymap can name.
QString NameOfKeyEvent(const QKeyEvent& event);
QString NameOfMouseButton(int button);
// `text` is the host's name of the button.
QString NameOfPadButton(const QString& text);

}  // namespace tavi

#endif  // HOST_EDITOR_KEY_CAPTURE_H_
