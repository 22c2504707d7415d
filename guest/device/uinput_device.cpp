#include "guest/device/uinput_device.h"

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace taviguest {

namespace {

constexpr char kUinput[] = "/dev/uinput";
constexpr char kDevices[] = "/sys/devices/virtual/input/";
constexpr char kNodes[] = "/dev/input/";
constexpr char kNodeStart[] = "event";

// Returns true for each successful kernel call, until one fails.
class Setup {
 public:
  explicit Setup(int file) : file_(file) {}

  template <typename Argument>
  Setup& Call(unsigned long request, Argument argument) {
    if (error_ == 0 && ioctl(file_, request, argument) < 0) error_ = errno;
    return *this;
  }

  int error() const { return error_; }

 private:
  const int file_;
  int error_ = 0;
};

uinput_abs_setup SetupOf(const AbsoluteAxis& axis) {
  uinput_abs_setup setup{};
  setup.code = static_cast<__u16>(axis.code);
  setup.absinfo.minimum = axis.minimum;
  setup.absinfo.maximum = axis.maximum;
  setup.absinfo.resolution = axis.resolution;
  return setup;
}

uinput_setup SetupOf(const std::string& name) {
  uinput_setup setup{};
  setup.id.bustype = BUS_VIRTUAL;
  name.copy(setup.name, sizeof(setup.name) - 1);
  return setup;
}

int Describe(int file, const DeviceDescription& description, const std::string& name) {
  Setup setup(file);
  for (const int property : description.properties) setup.Call(UI_SET_PROPBIT, property);
  if (!description.keys.empty()) setup.Call(UI_SET_EVBIT, EV_KEY);
  for (const int key : description.keys) setup.Call(UI_SET_KEYBIT, key);
  if (!description.relative_axes.empty()) setup.Call(UI_SET_EVBIT, EV_REL);
  for (const int axis : description.relative_axes) setup.Call(UI_SET_RELBIT, axis);
  if (!description.absolute_axes.empty()) setup.Call(UI_SET_EVBIT, EV_ABS);
  for (const AbsoluteAxis& axis : description.absolute_axes) {
    const uinput_abs_setup one = SetupOf(axis);
    setup.Call(UI_ABS_SETUP, &one);
  }
  const uinput_setup whole = SetupOf(name);
  return setup.Call(UI_DEV_SETUP, &whole).Call(UI_DEV_CREATE, 0).error();
}

// "event5", or nothing while there is none.
std::string FindNode(const std::string& directory) {
  DIR* entries = opendir(directory.c_str());
  if (!entries) return {};
  std::string node;
  while (const dirent* entry = readdir(entries)) {
    if (std::strncmp(entry->d_name, kNodeStart, sizeof(kNodeStart) - 1) == 0) node = entry->d_name;
  }
  closedir(entries);
  return node;
}

}  // namespace

UinputDevice::~UinputDevice() {
  if (file_ >= 0) close(file_);
}

int UinputDevice::Create(const DeviceDescription& description, const std::string& name) {
  const int file = open(kUinput, O_WRONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return errno;
  const int error = Describe(file, description, name);
  if (error != 0) {
    close(file);
    return error;
  }
  file_ = file;
  return 0;
}

std::string UinputDevice::Node() const {
  char name[64] = "";
  if (ioctl(file_, UI_GET_SYSNAME(sizeof(name)), name) < 0) return {};
  const std::string directory = std::string(kDevices) + name;
  const std::string node = FindNode(directory);
  return node.empty() ? directory : kNodes + node;
}

int UinputDevice::Write(const std::vector<input_event>& events) const {
  const size_t size = events.size() * sizeof(input_event);
  ssize_t written = 0;
  do {
    written = write(file_, events.data(), size);
  } while (written < 0 && errno == EINTR);
  if (written < 0) return errno;
  return static_cast<size_t>(written) == size ? 0 : EIO;
}

input_event InputEventOf(const KernelEvent& event) {
  input_event result{};
  result.type = static_cast<__u16>(event.type);
  result.code = static_cast<__u16>(event.code);
  result.value = event.value;
  return result;
}

}  // namespace taviguest
