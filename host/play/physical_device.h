// A device that a player has in hand, and where devices come from. Real ones are EvdevDevice and DeviceFolder; tests
// have their own.
#ifndef HOST_PLAY_PHYSICAL_DEVICE_H_
#define HOST_PLAY_PHYSICAL_DEVICE_H_

#include <functional>
#include <memory>

#include <QString>
#include <QStringList>

#include "host/play/device_traits.h"
#include "host/play/input_frame.h"

namespace tavi {

using FrameTaker = std::function<void(const InputFrame& frame)>;

// Main thread.
class PhysicalDevice {
 public:
  virtual ~PhysicalDevice() = default;

  virtual const DeviceTraits& Traits() const = 0;
  // Becomes readable when there is something to read; -1: never.
  virtual int File() const = 0;

  // Hands over what came since the last time, each frame as soon as it is whole. False when the device is gone.
  virtual bool Read(const FrameTaker& take) = 0;

  // Whether a key or button is down right now, as the kernel says.
  virtual bool IsAnyKeyDown() const = 0;
  // From here on no other reader gets its events. What went wrong, for people, or nothing.
  virtual QString Grab() = 0;
  virtual void Ungrab() = 0;
};

// Main thread.
class DeviceSource {
 public:
  virtual ~DeviceSource() = default;

  // All that there are, in a fixed order.
  virtual QStringList Paths() const = 0;
  // Null, and `problem` says why, for people, when it cannot be opened.
  virtual std::unique_ptr<PhysicalDevice> Open(const QString& path, QString* problem) = 0;
  // `changed` is called when devices may have come or gone, or may be opened now.
  virtual void Watch(std::function<void()> changed) = 0;
};

}  // namespace tavi

#endif  // HOST_PLAY_PHYSICAL_DEVICE_H_
