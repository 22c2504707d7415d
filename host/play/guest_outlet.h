#ifndef HOST_PLAY_GUEST_OUTLET_H_
#define HOST_PLAY_GUEST_OUTLET_H_

#include <QSize>
#include <QString>

namespace tavi {

// Where the lines for the guest go while somebody plays. Main thread, but for Send.
class GuestOutlet {
 public:
  virtual ~GuestOutlet() = default;

  // The guest's touch surface from here on. Where that cannot be changed, it lifts what is down and begins anew. What
  // went wrong, for people, or nothing; then the guest that there was goes on.
  virtual QString Open(const QSize& surface) = 0;

  // A line as the library's send functions get it. Any thread.
  virtual void Send(const char* data, int length) = 0;

  // Lifts what is down, gamepads included.
  virtual void LiftAll() = 0;
  // The same, and ends. Lines go nowhere afterwards.
  virtual void Close() = 0;

  // What there is to tell about it in a state line; empty for nothing.
  virtual QString State() const = 0;
};

}  // namespace tavi

#endif  // HOST_PLAY_GUEST_OUTLET_H_
