#ifndef HOST_WINDOW_EDITOR_KEY_LISTENER_H_
#define HOST_WINDOW_EDITOR_KEY_LISTENER_H_

#include <QToolButton>

#include "host/editor/key_capture.h"

namespace tavi {

// A button that, once pressed, waits for what is to be bound: a key, a button of the mouse over it, the wheel over it,
// or what TakePad tells. Escape ends the wait, and so does the loss of the focus.
class KeyListener : public QToolButton {
  Q_OBJECT

 public:
  explicit KeyListener(bool takes_chords, QWidget* parent = nullptr);

  void Listen();
  bool IsListening() const { return is_listening_; }
  // A button of a gamepad, by the host's name.
  void TakePad(const QString& text, bool down);

 Q_SIGNALS:
  // As a keymap writes it.
  void Bound(const QString& key);

 protected:
  bool event(QEvent* event) override;

 private:
  bool HandleKey(const QKeyEvent& event);
  void Stop();
  void Take(const QString& key);
  void Press(const QString& name) { Take(capture_.Press(name)); }
  void Release(const QString& name) { Take(capture_.Release(name)); }

  const bool takes_chords_;
  bool is_listening_ = false;
  KeyCapture capture_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_KEY_LISTENER_H_
