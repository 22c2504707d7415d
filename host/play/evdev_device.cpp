#include "host/play/evdev_device.h"

#include <algorithm>
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

constexpr std::size_t kBitsInByte = 8;
constexpr std::size_t kMostAtOnce = 64;  // events; after a long pause the kernel may have more

// The keys of a device that are down; none if the device is gone.
std::bitset<KEY_CNT> KeysDown(int file) {
  unsigned char bytes[KEY_CNT / kBitsInByte] = {};
  std::bitset<KEY_CNT> keys;
  if (::ioctl(file, EVIOCGKEY(sizeof(bytes)), bytes) < 0) return keys;
  for (std::size_t code = 0; code < keys.size(); ++code) {
    keys[code] = (bytes[code / kBitsInByte] >> (code % kBitsInByte) & 1) != 0;
  }
  return keys;
}

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
  for (;;) {
    input_event events[kMostAtOnce];
    const ssize_t size = ::read(file_, events, sizeof(events));
    if (size < 0) return errno == EAGAIN || errno == EINTR;
    const std::size_t count = static_cast<std::size_t>(size) / sizeof(input_event);
    std::for_each(events, events + count, [&](const input_event& event) { Take(event, take); });
    if (count < kMostAtOnce) return true;
  }
}

void EvdevDevice::Take(const input_event& event, const FrameTaker& take) {
  if (event.type == EV_SYN && event.code == SYN_DROPPED) {
    is_passed_over_ = is_behind_ = true;
    frame_.clear();
  } else if (event.type != EV_SYN) {
    if (is_passed_over_) return;
    if (event.type == EV_KEY) down_[event.code] = event.value != 0;
    frame_.push_back({event.type, event.code, event.value});
  } else if (event.code == SYN_REPORT) {
    is_passed_over_ = false;
    if (std::exchange(is_behind_, false)) CatchUp();
    if (!frame_.empty()) take(frame_);
    frame_.clear();
  }
}

// EVIOCGKEY also drops the queued key events of this reader, so no event older than the returned state follows it.
void EvdevDevice::CatchUp() {
  const std::bitset<KEY_CNT> now = KeysDown(file_);
  const std::bitset<KEY_CNT> changed = now ^ down_;
  for (std::size_t code = 0; code < changed.size(); ++code) {
    if (changed[code]) frame_.push_back({EV_KEY, static_cast<int>(code), now[code] ? 1 : 0});
  }
  down_ = now;
}

bool EvdevDevice::IsAnyKeyDown() const {
  is_behind_ = true;  // the ioctl drops queued events
  return KeysDown(file_).any();
}

QString EvdevDevice::Grab() {
  const int result = libevdev_grab(device_, LIBEVDEV_GRAB);
  if (result == 0) return {};
  return result == -EBUSY ? QStringLiteral("another program has grabbed it") : qt_error_string(-result);
}

void EvdevDevice::Ungrab() { libevdev_grab(device_, LIBEVDEV_UNGRAB); }

}  // namespace tavi
