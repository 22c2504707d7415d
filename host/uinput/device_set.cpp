#include "host/uinput/device_set.h"

#include <cerrno>
#include <cstring>
#include <libevdev/libevdev-uinput.h>
#include <libevdev/libevdev.h>

#include "host/uinput/device_description.h"

namespace tavi {

namespace {

struct FreeTemplate {
  void operator()(libevdev* device) const { libevdev_free(device); }
};
using DeviceTemplate = std::unique_ptr<libevdev, FreeTemplate>;

DeviceTemplate MakeTemplate(KernelDevice device, const QSize& surface) {
  const DeviceDescription description = DescribeDevice(device, surface);
  DeviceTemplate result(libevdev_new());
  libevdev_set_name(result.get(), QByteArray("tavi ").append(WordOfDevice(device)).constData());
  libevdev_set_id_bustype(result.get(), BUS_VIRTUAL);
  for (const int property : description.properties) {
    libevdev_enable_property(result.get(), static_cast<unsigned>(property));
  }
  const auto enable = [&result](unsigned type, int code, const input_absinfo* axis) {
    libevdev_enable_event_code(result.get(), type, static_cast<unsigned>(code), axis);
  };
  for (const int key : description.keys) enable(EV_KEY, key, nullptr);
  for (const int axis : description.relative_axes) enable(EV_REL, axis, nullptr);
  for (const AbsoluteAxis& axis : description.absolute_axes) {
    input_absinfo range{};
    range.minimum = axis.minimum;
    range.maximum = axis.maximum;
    enable(EV_ABS, axis.code, &range);
  }
  return result;
}

// `error` is one of errno.
QString WhyNoDevices(int error) {
  const QString reason = QString::fromLocal8Bit(std::strerror(error));
  switch (error) {
    case ENOENT:
    case ENODEV:
    case ENXIO: return QStringLiteral("there is no /dev/uinput here; \"modprobe uinput\" as root may bring it");
    case EACCES:
    case EPERM: return QStringLiteral("/dev/uinput is not for this user (%1)").arg(reason);
    default: return QStringLiteral("/dev/uinput makes no device: ") + reason;
  }
}

}  // namespace

void DestroyUinputDevice::operator()(libevdev_uinput* device) const { libevdev_uinput_destroy(device); }

QString DeviceSet::Open(const QSize& surface) {
  for (const KernelDevice device : kKernelDevices) {
    const DeviceTemplate description = MakeTemplate(device, surface);
    libevdev_uinput* created = nullptr;
    const int result = libevdev_uinput_create_from_device(description.get(), LIBEVDEV_UINPUT_OPEN_MANAGED, &created);
    if (result < 0) return WhyNoDevices(-result);
    devices_[device].reset(created);
  }
  return {};
}

QStringList DeviceSet::Places() const {
  QStringList places;
  for (const auto& [device, created] : devices_) {
    const char* node = libevdev_uinput_get_devnode(created.get());
    // The node may take its time; the kernel's own directory of the device is there at once.
    const char* place = node ? node : libevdev_uinput_get_syspath(created.get());
    places += QStringLiteral("%1 %2").arg(QLatin1String(WordOfDevice(device)), QString::fromLocal8Bit(place));
  }
  return places;
}

QString DeviceSet::Write(const KernelEvents& events) {
  for (const KernelEvent& event : events) {
    const int result = libevdev_uinput_write_event(devices_[event.device].get(), static_cast<unsigned>(event.type),
                                                   static_cast<unsigned>(event.code), event.value);
    if (result < 0)
      return QStringLiteral("the kernel takes no events: ") + QString::fromLocal8Bit(std::strerror(-result));
  }
  return {};
}

}  // namespace tavi
