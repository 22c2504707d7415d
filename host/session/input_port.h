#ifndef HOST_SESSION_INPUT_PORT_H_
#define HOST_SESSION_INPUT_PORT_H_

#include <functional>

#include <QObject>

#include "host/session/host_event.h"

class QEvent;

namespace tavi {

// The one way from the window into the library, so that what goes in can be told together with what comes out.
//
// Main thread.
class InputPort : public QObject {
  Q_OBJECT

 public:
  static InputPort* GetInstance();

  // Events of the view, of gamepads, and counts of a mouse that is captured. A touch whose fingers were lifted
  // meanwhile goes no further: it counts again from the next one on.
  void Send(QEvent* event);
  void SendJoystick(QEvent* event);
  void SendRelative(int dx, int dy);

  // Lifts all input of the display that is played on, touches among it, which the library's own reset leaves down.
  void LetGo();
  // The same by something that has it lifted besides.
  void LetGoBy(const std::function<void()>& change);

 Q_SIGNALS:
  // An event is about to be handed over, or input to be lifted. What the library sends until Ended it sends because of
  // it.
  void Began(const tavi::HostEvent& event);
  void Ended();

 private:
  InputPort() = default;

  // Notes that somebody listens to Began: to ask with each event would be a good part of its way.
  void connectNotify(const QMetaMethod& signal) override;
  void LiftTouches();

  bool is_heard_ = false;    // was ever; for nobody, words for an event would be the dearest part of its way
  bool is_touched_ = false;  // the library has fingers of a touch
};

}  // namespace tavi

#endif  // HOST_SESSION_INPUT_PORT_H_
