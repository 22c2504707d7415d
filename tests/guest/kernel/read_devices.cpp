// Reads input devices like any program on Linux, and prints their events.
//
//   read_devices < PLACES
//
// Each line of PLACES is a device, its word and its node, as `tavi guest-uinput` prints them. Prints "reading" when all
// are open, reads until F24 is pressed on one of them, and prints the events in the notation of --dry-run, device by
// device.
#include <fcntl.h>
#include <iostream>
#include <libevdev/libevdev.h>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

struct Device {
  std::string word;
  int file = -1;
  std::vector<input_event> events;
};

std::vector<Device> OpenDevices() {
  std::vector<Device> devices;
  std::string word;
  std::string node;
  while (std::cin >> word >> node) {
    devices.push_back({word, ::open(node.c_str(), O_RDONLY | O_NONBLOCK), {}});
    if (devices.back().file < 0) std::cout << "cannot open " << node << std::endl;
  }
  return devices;
}

void WaitForAny(const std::vector<Device>& devices) {
  std::vector<pollfd> polled;
  for (const Device& device : devices) polled.push_back({device.file, POLLIN, 0});
  ::poll(polled.data(), polled.size(), -1);
}

// True if the end was among the events.
bool Drain(Device* device) {
  bool is_end = false;
  input_event event;
  while (::read(device->file, &event, sizeof(event)) == sizeof(event)) {
    device->events.push_back(event);
    is_end = is_end || (event.type == EV_KEY && event.code == KEY_F24);
  }
  return is_end;
}

bool DrainAll(std::vector<Device>* devices) {
  bool is_end = false;
  for (Device& device : *devices) is_end = Drain(&device) || is_end;
  return is_end;
}

void Print(const Device& device) {
  for (const input_event& event : device.events) {
    const char* code = libevdev_event_code_get_name(event.type, event.code);
    std::cout << device.word << ' ' << libevdev_event_type_get_name(event.type) << ' ' << (code ? code : "?") << ' '
              << event.value << '\n';
  }
}

}  // namespace

int main() {
  std::vector<Device> devices = OpenDevices();
  std::cout << "reading" << std::endl;
  while (!DrainAll(&devices)) WaitForAny(devices);
  DrainAll(&devices);  // what was written before the end, to a device that was read earlier
  for (const Device& device : devices) Print(device);
}
