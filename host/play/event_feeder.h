#ifndef HOST_PLAY_EVENT_FEEDER_H_
#define HOST_PLAY_EVENT_FEEDER_H_

#include <array>
#include <linux/input-event-codes.h>
#include <utility>
#include <vector>

#include <QHash>
#include <QObject>
#include <QPointF>
#include <Qt>

#include "host/play/input_frame.h"
#include "host/session/native_key.h"

namespace tavi {

class ReservedKeys;

// Converts frames of keyboards and mice to events for the library. All devices together are one keyboard and one mouse.
//
// In view control the counts of the mouse go to the library unchanged; otherwise they move a virtual pointer within the
// guest's display. A frame's movement comes before its buttons, so that these act where the pointer arrived.
//
// Main thread.
class EventFeeder : public QObject {
  Q_OBJECT

 public:
  // `reserved` gets each key first, and outlives this object.
  explicit EventFeeder(ReservedKeys* reserved, QObject* parent = nullptr);

  // How many pixels of the guest's display the pointer moves per count of the mouse; above 0.
  void SetSpeed(double speed) { speed_ = speed; }

  // `is_fed`: whether the library gets it. Reserved keys act in any case, and releases of keys that are down for the
  // library are passed on.
  void Take(int device, const InputFrame& frame, bool is_fed);
  // Releases what is down on the device.
  void Forget(int device);
  // Everything was released in the library: what is down on the devices has no effect until it is pressed again.
  void LetGo();

  // The pointer's position, in pixels of LiveHost::ViewSize.
  QPointF Pointer() const;

 private:
  struct Key {
    std::vector<int> devices;  // the devices on which it is down
    bool is_told = false;      // the library has it as down
  };
  struct Motion {
    int dx = 0;
    int dy = 0;
    int wheel = 0;  // in fractions of a notch; kNotch is a whole one
  };

  // False if a reserved key acted, so that the event is not passed on.
  bool TakeKey(int device, const DeviceEvent& event, bool is_fed);
  bool Press(int code, bool is_fed);
  void Release(int code);
  void Tell(int code, bool is_down);
  bool IsDown(int code) const { return !keys_[code].devices.empty(); }
  void SendKey(int code, bool is_down);
  void SendButton(Qt::MouseButton button, bool is_down);
  void Move(const Motion& motion);
  void Turn(int parts);

  // The text that the key types in the guest's text field, while that has the focus.
  QString TextOf(int code) const;
  Qt::KeyboardModifiers Modifiers() const;
  Qt::MouseButtons Buttons() const;
  const NativeKey& NativeOf(int code);

  ReservedKeys* const reserved_;
  double speed_ = 1;
  std::array<Key, KEY_CNT> keys_;  // by the kernel's code
  QPointF place_{0.5, 0.5};        // of the pointer, as a fraction of the display, whose size may change
  int turned_ = 0;                 // of the wheel, less than a notch
  QHash<int, NativeKey> natives_;  // by the kernel's code
};

}  // namespace tavi

#endif  // HOST_PLAY_EVENT_FEEDER_H_
