#ifndef HOST_GAMEPAD_GAMEPAD_POLL_H_
#define HOST_GAMEPAD_GAMEPAD_POLL_H_

#include <functional>

#include <QBasicTimer>
#include <QObject>

namespace tavi {

class Gamepads;

// Reads this computer's gamepads through SDL, including those that are connected or disconnected later. SDL's window
// and sound are not used. A build without SDL has no gamepads.
//
// Gamepads that SDL does not know can be described in the environment variable SDL_GAMECONTROLLERCONFIG.
//
// Only one may exist at a time. Main thread.
class GamepadPoll : public QObject {
  Q_OBJECT

 public:
  // Whether to read a gamepad, by its device file.
  using Choice = std::function<bool(const QString& path)>;

  // `pads` outlives the poll. Without `choice` all gamepads are read.
  explicit GamepadPoll(Gamepads* pads, Choice choice = {}, QObject* parent = nullptr);
  // Removes its gamepads from `pads`.
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
