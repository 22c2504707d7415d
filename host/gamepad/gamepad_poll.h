#ifndef HOST_GAMEPAD_GAMEPAD_POLL_H_
#define HOST_GAMEPAD_GAMEPAD_POLL_H_

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
  // `pads` outlives the poll.
  explicit GamepadPoll(Gamepads* pads, QObject* parent = nullptr);
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
  bool is_open_ = false;
  QBasicTimer reading_;
  QBasicTimer sticks_;
};

}  // namespace tavi

#endif  // HOST_GAMEPAD_GAMEPAD_POLL_H_
