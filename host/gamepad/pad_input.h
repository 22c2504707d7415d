// From one gamepad's buttons, triggers and sticks to the events that the library takes.
//
// Buttons and axes come by the names that SDL has for them, which mean the same place on every gamepad:
// "leftshoulder", "dpup", "righttrigger". All gamepads call their buttons by letters, so that one keymap serves them
// all. The two buttons that have no letter are called by their numbers, under a second device.
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
  kLettered,     // of the Xbox kind, and all that follow it
  kPlayStation,  // has a touchpad that is a button
};

// Sticks nearer to their rest than this, of 1, are at rest: gamepads that were used for some time stop short of it.
// The way from here to the edge counts as the whole.
constexpr double kStickDeadZone = 0.15;
// A left stick that moved by no more than this has not moved: each movement costs the library time.
constexpr double kStickStep = 0.01;
// A trigger, 0 to 1, is a button that goes down above the one and up below the other.
constexpr double kTriggerDown = 0.4;
constexpr double kTriggerUp = 0.25;

// What a stick at `raw`, each axis -1 to 1, stands for: within the unit circle, and null when it is at rest.
QPointF StickValue(const QPointF& raw);

// What the library's GetJoystickType gets for a device that a PadInput speaks of, and for any other.
int KindOfDevice(int device);

// One gamepad. It remembers what the library was told, and takes it back when it must.
//
// Main thread.
class PadInput {
 public:
  using Sink = std::function<void(QEvent*)>;

  // `id` is below 1,000,000 and no other gamepad's. `sink` gets button and axis events of the library, the sink's for
  // the time of the call.
  PadInput(int id, PadFamily family, Sink sink);

  // A button or axis that has no meaning here is left out.
  void SetButton(const QString& button, bool down);
  // `value` is -1 (left, up) to 1, of a trigger 0 to 1. Sticks are told by SendSticks, triggers at once.
  void SetAxis(const QString& axis, double value);
  // Call this at a steady pace: the left stick is told when it has moved; the right one each time while it is out of
  // its rest, since to the library it is a speed, and each event a step.
  void SendSticks();

  // Lets go of all that was told, what was pressed last first. What is held on then counts again from its next press.
  void ReleaseAll();
  // While off, nothing is told and what was told stays. When it is on again, what was let go meanwhile is let go.
  void SetListening(bool listening);

  // The names of the buttons that the library takes to be down, in the order of their presses.
  QStringList Pressed() const;
  // As last told: 0 left, 1 right.
  QPointF Stick(int stick) const { return told_sticks_[stick]; }

 private:
  // What the library was told to be down.
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
