#ifndef HOST_WINDOW_EDITOR_KEY_LISTENER_H_
#define HOST_WINDOW_EDITOR_KEY_LISTENER_H_

#include <QToolButton>

#include "host/editor/key_capture.h"

namespace tavi {

// A button that, when pressed, waits for something to bind: a key, a mouse button or the wheel over it, or a gamepad
// button that TakePad passes. Escape or the loss of the focus ends the wait.
class KeyListener : public QToolButton {
  Q_OBJECT

 public:
  explicit KeyListener(bool takes_chords, QWidget* parent = nullptr);

  void Listen();
  bool IsListening() const { return is_listening_; }
  // A gamepad button, by the host's name.
  void TakePad(const QString& text, bool down);

 Q_SIGNALS:
  // In the format of a keymap.
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
