// Converts one gamepad's buttons, triggers and sticks to events of the library.
//
// Buttons and axes have SDL's names, which mean the same position on every gamepad: "leftshoulder", "dpup",
// "righttrigger". All gamepads use letters for their buttons, so that one keymap serves them all. The two buttons
// without a letter use their numbers, under a second device.
#ifndef HOST_GAMEPAD_PAD_INPUT_H_
#define HOST_GAMEPAD_PAD_INPUT_H_

#include <functional>

#include <QPointF>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

class QEvent;

namespace tavi {

enum class PadFamily {
  kLettered,     // an Xbox gamepad, or one with its layout
  kPlayStation,  // has a touchpad that is a button
};

// A stick whose deflection, from 0 to 1, is smaller than this is at rest: worn gamepads do not return to the centre.
// The range from here to the edge is scaled to the full range.
constexpr double kStickDeadZone = 0.15;
// A movement of the left stick up to this size is ignored, because each movement costs the library time.
constexpr double kStickStep = 0.01;
// A trigger, 0 to 1, is a button that is pressed above the first value and released below the second.
constexpr double kTriggerDown = 0.4;
constexpr double kTriggerUp = 0.25;

// The position of a stick from `raw`, each axis -1 to 1: within the unit circle, and null at rest.
QPointF StickValue(const QPointF& raw);

// GetJoystickType's result for a device of a PadInput, and for any other.
int KindOfDevice(int device);

// One gamepad. It remembers what the library was sent, and releases it when necessary.
//
// Main thread.
class PadInput {
 public:
  using Sink = std::function<void(QEvent*)>;

  // `id` is below 1,000,000 and unique. `sink` gets button and axis events for the library; they are valid during the
  // call.
  PadInput(int id, PadFamily family, Sink sink);

  // A button or axis without a meaning here is ignored.
  void SetButton(const QString& button, bool down);
  // `value` is -1 (left, up) to 1; for a trigger 0 to 1. Stick positions are sent by SendSticks, triggers at once.
  void SetAxis(const QString& axis, double value);
  // Call this at a steady rate. It sends the left stick if it has moved; the right one each time while it is deflected,
  // because for the library each event of it is one step of a movement.
  void SendSticks();

  // Releases all that was pressed, in reverse order. A button that is still held takes effect again with its next
  // press.
  void ReleaseAll();
  // While off, nothing is sent and what was sent stays. On switching on again, what was released meanwhile is released.
  void SetListening(bool listening);

  // The names of the buttons that are down for the library, in the order of their presses.
  QStringList Pressed() const;
  // As last sent: 0 left, 1 right.
  QPointF Stick(int stick) const { return told_sticks_[stick]; }

 private:
  // A button that is down for the library.
  struct Press {
    QString button;  // SDL's name
    QString text;    // the library's
    int device;
  };

  Press PressOf(const QString& button) const;
  bool IsTold(const QString& button) const;
  void Tell(const QString& button);
  void TakeBack(const QString& button);
  void SetTrigger(const QString& trigger, double value);
  void TellStick(int stick, const QPointF& value);

  const int id_;
  const PadFamily family_;
  const Sink sink_;
  bool listening_ = true;
  QSet<QString> down_;  // on the gamepad, by SDL's names
  QVector<Press> told_;
  QPointF sticks_[2];  // on the gamepad: 0 left, 1 right
  QPointF told_sticks_[2];
};

}  // namespace tavi

#endif  // HOST_GAMEPAD_PAD_INPUT_H_
