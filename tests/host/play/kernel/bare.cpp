// The minimum between a keyboard and a touch screen: one loop that reads the one and writes to the other. The player's
// latency is compared with that of this loop.
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <iterator>
#include <linux/uinput.h>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int kLast = 10;  // of slots, of positions of the race

int OpenBoard() {
  DIR* folder = ::opendir("/dev/input");
  while (const dirent* entry = ::readdir(folder)) {
    const int file = ::open((std::string("/dev/input/") + entry->d_name).c_str(), O_RDONLY | O_CLOEXEC);
    char name[256] = {};
    if (file >= 0 && ::ioctl(file, EVIOCGNAME(sizeof(name) - 1), name) >= 0 && std::string(name) == "Test Board") {
      return file;
    }
    if (file >= 0) ::close(file);
  }
  return -1;
}

void SetAxis(int file, int code, int most) {
  uinput_abs_setup axis{};
  axis.code = static_cast<unsigned short>(code);
  axis.absinfo.maximum = most;
  ::ioctl(file, UI_ABS_SETUP, &axis);
}

int MakeScreen() {
  const int file = ::open("/dev/uinput", O_WRONLY | O_CLOEXEC);
  ::ioctl(file, UI_SET_EVBIT, EV_KEY);
  ::ioctl(file, UI_SET_KEYBIT, BTN_TOUCH);
  ::ioctl(file, UI_SET_EVBIT, EV_ABS);
  ::ioctl(file, UI_SET_PROPBIT, INPUT_PROP_DIRECT);
  SetAxis(file, ABS_MT_SLOT, kLast);
  SetAxis(file, ABS_MT_TRACKING_ID, 65535);
  SetAxis(file, ABS_MT_POSITION_X, 1279);
  SetAxis(file, ABS_MT_POSITION_Y, 719);
  uinput_setup setup{};
  setup.id.bustype = BUS_VIRTUAL;
  std::strcpy(setup.name, "bare screen");
  ::ioctl(file, UI_DEV_SETUP, &setup);
  ::ioctl(file, UI_DEV_CREATE);
  return file;
}

input_event Make(int type, int code, int value) {
  input_event event{};
  event.type = static_cast<unsigned short>(type);
  event.code = static_cast<unsigned short>(code);
  event.value = value;
  return event;
}

template <int N>
void Write(int file, const input_event (&frame)[N]) {
  if (::write(file, frame, sizeof(frame)) != sizeof(frame)) _exit(1);
}

}  // namespace

int main() {
  const int screen = MakeScreen();
  const int board = OpenBoard();
  if (board < 0 || ::ioctl(board, EVIOCGRAB, 1) != 0) return 1;
  const input_event down[] = {
      Make(EV_ABS, ABS_MT_SLOT, 1),         Make(EV_ABS, ABS_MT_TRACKING_ID, 1), Make(EV_ABS, ABS_MT_POSITION_X, 1203),
      Make(EV_ABS, ABS_MT_POSITION_Y, 533), Make(EV_KEY, BTN_TOUCH, 1),          Make(EV_SYN, SYN_REPORT, 0)};
  const input_event up[] = {Make(EV_ABS, ABS_MT_TRACKING_ID, -1), Make(EV_KEY, BTN_TOUCH, 0),
                            Make(EV_SYN, SYN_REPORT, 0)};
  input_event event{};
  while (::read(board, &event, sizeof(event)) == sizeof(event)) {
    if (event.type != EV_KEY || event.value > 1) continue;
    if (event.value == 1) {
      Write(screen, down);
    } else {
      Write(screen, up);
    }
  }
}
