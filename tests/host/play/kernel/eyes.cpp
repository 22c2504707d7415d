// Another program that reads input devices with plain evdev: prints a line for each event, "NAME|TYPE CODE VALUE US"
// with the kernel's time in microseconds, at once.
//
//   eyes NAME...      reads each device with one of these names, as soon as it exists
//
// Prints "gone" after the name when a device is removed.
#include <chrono>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <linux/input.h>
#include <map>
#include <set>
#include <string>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

namespace {

struct Seen {
  std::string name;
  int file = -1;
};

std::string NameOf(int file) {
  char name[256] = {};
  ::ioctl(file, EVIOCGNAME(sizeof(name) - 1), name);
  return name;
}

void Look(const std::set<std::string>& wanted, std::map<std::string, Seen>* seen) {
  DIR* folder = ::opendir("/dev/input");
  if (!folder) return;
  while (const dirent* entry = ::readdir(folder)) {
    const std::string path = std::string("/dev/input/") + entry->d_name;
    if (path.find("event") == std::string::npos || seen->count(path) != 0) continue;
    const int file = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) continue;
    const std::string name = NameOf(file);
    if (wanted.count(name) == 0) {
      ::close(file);
      continue;
    }
    int clock = CLOCK_MONOTONIC;
    ::ioctl(file, EVIOCSCLOCKID, &clock);
    (*seen)[path] = {name, file};
    std::printf("%s|open\n", name.c_str());
  }
  ::closedir(folder);
}

// False when the device is removed.
bool Drain(const Seen& device) {
  input_event event{};
  ssize_t count = 0;
  while ((count = ::read(device.file, &event, sizeof(event))) == sizeof(event)) {
    const long long us = event.input_event_sec * 1000000LL + event.input_event_usec;
    std::printf("%s|%d %d %d %lld\n", device.name.c_str(), event.type, event.code, event.value, us);
  }
  return count >= 0 || errno == EAGAIN;
}

}  // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  const std::set<std::string> wanted(argv + 1, argv + argc);
  std::map<std::string, Seen> seen;
  for (;;) {
    Look(wanted, &seen);
    for (auto device = seen.begin(); device != seen.end();) {
      if (Drain(device->second)) {
        ++device;
        continue;
      }
      std::printf("%s|gone\n", device->second.name.c_str());
      ::close(device->second.file);
      device = seen.erase(device);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}
