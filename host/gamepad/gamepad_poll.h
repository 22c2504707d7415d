#ifndef HOST_GAMEPAD_GAMEPAD_POLL_H_
#define HOST_GAMEPAD_GAMEPAD_POLL_H_

#include <functional>

#include <QBasicTimer>
#include <QObject>

namespace tavi {

class Gamepads;

// Reads the gamepads of this computer through SDL: those that are connected, and those that come and go meanwhile.
// SDL's window and sound are not used. In a build without SDL there are no gamepads.
//
// Gamepads that SDL does not know can be described to it in the environment variable SDL_GAMECONTROLLERCONFIG.
//
// One at a time. Main thread.
class GamepadPoll : public QObject {
  Q_OBJECT

 public:
  // Whether a gamepad is to be read; by its device's file.
  using Choice = std::function<bool(const QString& path)>;

  // `pads` outlives the poll. Without `choice` all are read.
  explicit GamepadPoll(Gamepads* pads, Choice choice = {}, QObject* parent = nullptr);
  // Takes the gamepads out again.
  ~GamepadPoll() override;

  // Whether the program was built with SDL.
  static bool IsSupported();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void ReadEvents();
  void Open(int device_index);
  void Close(int id);
  void SetPace();

  Gamepads* const pads_;
  const Choice choice_;
  bool is_open_ = false;
  QBasicTimer reading_;
  QBasicTimer sticks_;
};

}  // namespace tavi

#endif  // HOST_GAMEPAD_GAMEPAD_POLL_H_
