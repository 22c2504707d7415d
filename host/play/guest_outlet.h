#ifndef HOST_PLAY_GUEST_OUTLET_H_
#define HOST_PLAY_GUEST_OUTLET_H_

#include <QSize>
#include <QString>

namespace tavi {

// The receiver of the guest's lines while a user plays. Main thread, except Send.
class GuestOutlet {
 public:
  virtual ~GuestOutlet() = default;

  // The guest's touch surface from now on. If it cannot be changed, releases what is down and creates the devices
  // again. Returns the error, for display, or an empty string; after an error the old guest stays.
  virtual QString Open(const QSize& surface) = 0;

  // A line in the form of the library's send functions. Any thread.
  virtual void Send(const char* data, int length) = 0;

  // Releases what is down, gamepads included.
  virtual void LiftAll() = 0;
  // The same, and ends. Later lines go nowhere.
  virtual void Close() = 0;

  // The text about it in a state line; may be empty.
  virtual QString State() const = 0;
};

}  // namespace tavi

#endif  // HOST_PLAY_GUEST_OUTLET_H_
