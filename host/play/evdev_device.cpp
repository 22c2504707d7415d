#include "host/play/evdev_device.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <linux/input.h>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

#include <QFile>

namespace tavi {

namespace {

constexpr int kBitsInByte = 8;

bool HasAll(const libevdev* device, unsigned type, unsigned first, unsigned last) {
  for (unsigned code = first; code <= last; ++code) {
    if (libevdev_has_event_code(device, type, code) == 0) return false;
  }
  return true;
}

bool Has(const libevdev* device, unsigned type, unsigned code) { return HasAll(device, type, code, code); }

// Escape to S: the keys by which udev recognizes a keyboard.
bool HasLetters(const libevdev* device) { return HasAll(device, EV_KEY, KEY_ESC, KEY_S); }

DeviceTraits TraitsOf(const libevdev* device, const QString& path) {
  DeviceTraits traits;
  traits.path = path;
  traits.name = QString::fromUtf8(libevdev_get_name(device));
  traits.is_virtual = libevdev_get_id_bustype(device) == BUS_VIRTUAL;
  traits.has_letters = HasLetters(device);
  traits.has_keypad = HasAll(device, EV_KEY, KEY_KP1, KEY_KP3) && HasAll(device, EV_KEY, KEY_KP4, KEY_KP6);
  traits.has_motion = HasAll(device, EV_REL, REL_X, REL_Y);
  traits.has_mouse_buttons = Has(device, EV_KEY, BTN_LEFT);
  traits.has_places = Has(device, EV_ABS, ABS_X) || Has(device, EV_ABS, ABS_MT_POSITION_X);
  traits.has_gamepad_buttons = Has(device, EV_KEY, BTN_SOUTH) || Has(device, EV_KEY, BTN_TRIGGER);
  return traits;
}

}  // namespace

std::unique_ptr<EvdevDevice> EvdevDevice::Open(const QString& path, QString* problem) {
  const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) {
    *problem = qt_error_string(errno);
    return nullptr;
  }
  libevdev* device = nullptr;
  const int result = libevdev_new_from_fd(file, &device);
  if (result < 0) {
    ::close(file);
    *problem = qt_error_string(-result);
    return nullptr;
  }
  return std::unique_ptr<EvdevDevice>(new EvdevDevice(file, device, path));
}

EvdevDevice::EvdevDevice(int file, libevdev* device, const QString& path)
    : file_(file), device_(device), traits_(TraitsOf(device, path)) {}

// Closing ends a grab.
EvdevDevice::~EvdevDevice() {
  libevdev_free(device_);
  ::close(file_);
}

bool EvdevDevice::Read(const FrameTaker& take) {
  unsigned flag = LIBEVDEV_READ_FLAG_NORMAL;
  for (;;) {
    input_event event{};
    const int result = libevdev_next_event(device_, flag, &event);
    if (result == -EAGAIN && flag == LIBEVDEV_READ_FLAG_SYNC) {
      flag = LIBEVDEV_READ_FLAG_NORMAL;
      continue;
    }
    if (result < 0) return result == -EAGAIN || result == -EINTR;
    if (result == LIBEVDEV_READ_STATUS_SYNC) flag = LIBEVDEV_READ_FLAG_SYNC;
    if (event.type != EV_SYN) {
      frame_.push_back({event.type, event.code, event.value});
    } else if (event.code == SYN_REPORT && !frame_.empty()) {
      take(std::exchange(frame_, {}));
    }
  }
}

bool EvdevDevice::IsAnyKeyDown() const {
  std::array<unsigned char, KEY_CNT / kBitsInByte> keys{};
  if (::ioctl(file_, EVIOCGKEY(keys.size()), keys.data()) < 0) return false;  // disconnected: no key can be stuck
  return std::any_of(keys.begin(), keys.end(), [](unsigned char byte) { return byte != 0; });
}

QString EvdevDevice::Grab() {
  const int result = libevdev_grab(device_, LIBEVDEV_GRAB);
  if (result == 0) return {};
  return result == -EBUSY ? QStringLiteral("another program has grabbed it") : qt_error_string(-result);
}

void EvdevDevice::Ungrab() { libevdev_grab(device_, LIBEVDEV_UNGRAB); }

}  // namespace tavi
