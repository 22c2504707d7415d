// A device of the player, and the source of devices. The real ones are EvdevDevice and DeviceFolder; tests have their
// own.
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
  // Becomes readable when there is data; -1: never.
  virtual int File() const = 0;

  // Passes on everything since the last call, each frame when it is complete. False if the device was disconnected.
  virtual bool Read(const FrameTaker& take) = 0;

  // Whether a key or button is currently down, according to the kernel.
  virtual bool IsAnyKeyDown() const = 0;
  // From now on no other reader gets its events. Returns the error, for display, or an empty string.
  virtual QString Grab() = 0;
  virtual void Ungrab() = 0;
};

// Main thread.
class DeviceSource {
 public:
  virtual ~DeviceSource() = default;

  // The paths of all devices, in a fixed order.
  virtual QStringList Paths() const = 0;
  // Null if it cannot be opened; `problem` is then the reason, for display.
  virtual std::unique_ptr<PhysicalDevice> Open(const QString& path, QString* problem) = 0;
  // `changed` is called when devices may have appeared or disappeared, or may have become accessible.
  virtual void Watch(std::function<void()> changed) = 0;
};

}  // namespace tavi

#endif  // HOST_PLAY_PHYSICAL_DEVICE_H_
