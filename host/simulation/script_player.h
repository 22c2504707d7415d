// Plays scripts on virtual time: each command becomes the events that a window would send.
#ifndef HOST_SIMULATION_SCRIPT_PLAYER_H_
#define HOST_SIMULATION_SCRIPT_PLAYER_H_

#include <QEvent>
#include <QPointF>
#include <QString>
#include <QVector>

#include "host/simulation/script.h"

namespace tavi {

class SimulatedHost;
class VirtualEventDispatcher;

// Main thread. The caller owns dispatcher and host, which outlive the player; the host must have been started.
class ScriptPlayer {
 public:
  ScriptPlayer(VirtualEventDispatcher* clock, SimulatedHost* host);

  // Runs all commands. Time passes only in waits and while the library blocks.
  void Play(const QVector<ScriptCommand>& commands);
  void Play(const ScriptCommand& command);
  // Runs a command other than a wait, without processing posted events: for calls from within a callback.
  void Feed(const ScriptCommand& command);

  // Loads a keymap as a host does when an app comes to the foreground.
  void LoadKeymap(const QString& path);

  int display = 1;
  QString package = QStringLiteral("com.example.game");

 private:
  void SendKey(QEvent::Type type, const tavikeymapmanager::ConfigKey& key, bool repeat);
  void TypeText(const QString& text);
  void SendMouse(QEvent::Type type, const QPointF& point, Qt::MouseButton button);
  void SendWheel(int delta, const QPointF& point);
  void SendTouch(QEvent::Type type, const QVector<ScriptTouch>& touches);
  void SendInputMethod(const QString& commit, const QString& preedit);
  void SendJoystickButton(QEvent::Type type, const QString& name);
  void SendJoystickAxis(int stick, const QPointF& value);
  void MovePointer(const QPointF& point);
  void SetUpHost(const ScriptCommand& command);

  VirtualEventDispatcher* clock_;
  SimulatedHost* host_;
  Qt::MouseButtons buttons_ = Qt::NoButton;
  Qt::KeyboardModifiers modifiers_ = Qt::NoModifier;
  QPointF position_;  // of the pointer in the guest view
  QVector<ScriptTouch> touches_;
};

}  // namespace tavi

#endif  // HOST_SIMULATION_SCRIPT_PLAYER_H_
