#ifndef HOST_SESSION_INPUT_PORT_H_
#define HOST_SESSION_INPUT_PORT_H_

#include <functional>

#include <QObject>

#include "host/session/host_event.h"

class QEvent;

namespace tavi {

// The single path from the window to the library, so that input can be logged together with its results.
//
// Main thread.
class InputPort : public QObject {
  Q_OBJECT

 public:
  static InputPort* GetInstance();

  // Events of the view, of gamepads, and counts of a captured mouse. A touch whose contacts were released meanwhile is
  // not passed on until the next touch begins.
  void Send(QEvent* event);
  void SendJoystick(QEvent* event);
  void SendRelative(int dx, int dy);

  // Releases all input of the current display, including touches, which the library's own reset leaves down.
  void LetGo();
  // The same through a function that releases more.
  void LetGoBy(const std::function<void()>& change);

 Q_SIGNALS:
  // An event is about to be passed to the library, or input to be released. The lines that the library sends until
  // Ended are its result.
  void Began(const tavi::HostEvent& event);
  void Ended();

 private:
  InputPort() = default;

  // Notes that Began is connected: checking at each event would be a large part of its cost.
  void connectNotify(const QMetaMethod& signal) override;
  void LiftTouches();

  bool is_heard_ = false;    // Began was ever connected; otherwise events are not described, which is expensive
  bool is_touched_ = false;  // the library has contacts of a touch that are down
};

}  // namespace tavi

#endif  // HOST_SESSION_INPUT_PORT_H_
