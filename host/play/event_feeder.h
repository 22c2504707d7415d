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

// From frames of keyboards and mice to the events that the library takes: all devices are one keyboard and one mouse.
//
// In view control the counts of the mouse go to the library as they are; otherwise they move a pointer of our own
// within the guest's display. A frame's movement comes before its buttons, which so are where the pointer went.
//
// Main thread.
class EventFeeder : public QObject {
  Q_OBJECT

 public:
  // `reserved` are heard first, and outlive this.
  explicit EventFeeder(ReservedKeys* reserved, QObject* parent = nullptr);

  // How many pixels of the guest's display the pointer goes for a count of the mouse; above 0.
  void SetSpeed(double speed) { speed_ = speed; }

  // `is_fed`: whether the library gets it. Reserved keys act in any case, and what it was told to be down comes up.
  void Take(int device, const InputFrame& frame, bool is_fed);
  // What is down on the device comes up.
  void Forget(int device);
  // The library was made to let go of everything: what is down now means nothing until it is pressed again.
  void LetGo();

  // Where the pointer is, in pixels of LiveHost::ViewSize.
  QPointF Pointer() const;

 private:
  struct Key {
    std::vector<int> devices;  // on which it is down
    bool is_told = false;      // to be down, to the library
  };
  struct Motion {
    int dx = 0;
    int dy = 0;
    int wheel = 0;  // in parts of a notch, kNotch the whole
  };

  // False when a reserved key acted, so that what comes with it is not fed.
  bool TakeKey(int device, const DeviceEvent& event, bool is_fed);
  bool Press(int code, bool is_fed);
  void Release(int code);
  void Tell(int code, bool is_down);
  bool IsDown(int code) const { return !keys_[code].devices.empty(); }
  void SendKey(int code, bool is_down);
  void SendButton(Qt::MouseButton button, bool is_down);
  void Move(const Motion& motion);
  void Turn(int parts);

  // What the key types into the guest's text field, while that has the focus.
  QString TextOf(int code) const;
  Qt::KeyboardModifiers Modifiers() const;
  Qt::MouseButtons Buttons() const;
  const NativeKey& NativeOf(int code);

  ReservedKeys* const reserved_;
  double speed_ = 1;
  std::array<Key, KEY_CNT> keys_;  // by the kernel's code
  QPointF place_{0.5, 0.5};        // of the pointer, in fractions of the display, which may change its size
  int turned_ = 0;                 // of the wheel, less than a notch
  QHash<int, NativeKey> natives_;  // by the kernel's code
};

}  // namespace tavi

#endif  // HOST_PLAY_EVENT_FEEDER_H_
