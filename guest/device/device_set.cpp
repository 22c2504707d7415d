#include "guest/device/device_set.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>

#include "guest/device/device_place.h"
#include "guest/translation/device_description.h"

namespace taviguest {

namespace {

constexpr std::chrono::milliseconds kUntilReadersFindIt(300);

void WaitForReaders() { std::this_thread::sleep_for(kUntilReadersFindIt); }

// `error` is an errno value.
std::string WhyNoDevices(int error) {
  const std::string reason = std::strerror(error);
  switch (error) {
    case ENOENT:
    case ENODEV:
    case ENXIO: return "there is no /dev/uinput here; \"modprobe uinput\" as root may bring it";
    case EACCES:
    case EPERM: return "this user cannot open /dev/uinput (" + reason + ")";
    default: return "/dev/uinput cannot create a device: " + reason;
  }
}

std::vector<input_event> InputEventsOf(const KernelEvents& events) {
  std::vector<input_event> result;
  for (const KernelEvent& event : events) result.push_back(InputEventOf(event));
  return result;
}

}  // namespace

std::string DeviceSet::Open() {
  std::string error = keeper_.Start();
  for (const KernelDevice device : kKernelDevices) {
    if (error.empty() && IsThereFromStart(device)) error = Make(device);
  }
  if (error.empty()) WaitForReaders();
  return error;
}

bool DeviceSet::IsThereFromStart(KernelDevice device) const {
  switch (device) {
    case KernelDevice::kGamepad: return options_.has_gamepad;
    case KernelDevice::kTouchpad: return options_.has_touchpad;
    default: return true;
  }
}

std::string DeviceSet::Make(KernelDevice device) {
  const std::string name = options_.name + ' ' + WordOfDevice(device);
  const int error = devices_[device].Create(DescribeDevice(device, options_), name);
  if (error != 0) {
    devices_.erase(device);
    return WhyNoDevices(error);
  }
  return keeper_.Keep(devices_[device].file(), InputEventsOf(RestFrame(device, options_)));
}

std::string DeviceSet::MakeMissing(const KernelEvents& events) {
  bool is_any_new = false;
  for (const KernelEvent& event : events) {
    if (event.type != EV_SYN || devices_.count(event.device) > 0) continue;  // each frame ends with one
    const std::string error = Make(event.device);
    if (!error.empty()) return error;
    is_any_new = true;
    if (watcher_) watcher_(PlaceOf(event.device));
  }
  if (is_any_new) WaitForReaders();
  return {};
}

std::vector<DevicePlace> DeviceSet::Places() const {
  std::vector<DevicePlace> places;
  for (const auto& row : devices_) places.push_back(PlaceOf(row.first));
  return places;
}

DevicePlace DeviceSet::PlaceOf(KernelDevice device) const {
  const std::string word = WordOfDevice(device);
  return {word, devices_.at(device).Node(), options_.name + ' ' + word};
}

// A frame ends with its report.
std::string DeviceSet::Write(const KernelEvents& events) {
  std::string problem = MakeMissing(events);
  if (!problem.empty()) return problem;
  frame_.clear();
  for (const KernelEvent& event : events) {
    frame_.push_back(InputEventOf(event));
    if (event.type != EV_SYN) continue;
    const int error = devices_.at(event.device).Write(frame_);
    frame_.clear();
    if (error != 0) return std::string("the kernel accepts no events: ") + std::strerror(error);
  }
  return {};
}

}  // namespace taviguest
