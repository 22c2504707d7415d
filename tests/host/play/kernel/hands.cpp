// The hands of a player: makes a keyboard and a mouse that look like real ones, and plays on them the commands of
// standard input, one per line:
//
//   key CODE VALUE    a key of the keyboard, or a button of the mouse from 272 on
//   rel DX DY         moves the mouse
//   wheel PARTS       turns its wheel, 120 a notch
//   wait MS           waits at least this long, so that a slow machine shortens no gesture
//   flood CODE TIMES  a key, down and up repeatedly, as fast as possible
//   race CODE TIMES   a key, 8 ms down and 8 ms up repeatedly; prints "press US" for each, in microseconds
//   unplug            removes the keyboard
//   plug_pad          makes a gamepad; there is none at first
//   pad CODE VALUE    a button of the gamepad
//   axis CODE VALUE   an axis of the gamepad: a stick from -32768 to 32767, a trigger from 0 to 255
//   unplug_pad        removes the gamepad
//   done WORD         prints WORD
//
// Prints "ready" when the devices exist; they exist until the program ends.
#include <chrono>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <iostream>
#include <linux/uinput.h>
#include <sstream>
#include <string>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kLastKey = KEY_MICMUTE;

// An error here shows up as missing events at the reader, too.
void Emit(int file, int type, int code, int value) {
  input_event event{};
  event.type = static_cast<unsigned short>(type);
  event.code = static_cast<unsigned short>(code);
  event.value = value;
  if (::write(file, &event, sizeof(event)) != sizeof(event)) std::cerr << "hands: an event was not taken\n";
}

void Report(int file) { Emit(file, EV_SYN, SYN_REPORT, 0); }

int Create(int file, const char* name) {
  uinput_setup setup{};
  setup.id.bustype = BUS_USB;
  setup.id.vendor = 0x1234;
  setup.id.product = 0x5678;
  std::strncpy(setup.name, name, sizeof(setup.name) - 1);
  ::ioctl(file, UI_DEV_SETUP, &setup);
  ::ioctl(file, UI_DEV_CREATE);
  return file;
}

int MakeKeyboard() {
  const int file = ::open("/dev/uinput", O_WRONLY | O_CLOEXEC);
  ::ioctl(file, UI_SET_EVBIT, EV_KEY);
  ::ioctl(file, UI_SET_EVBIT, EV_REP);
  for (int code = KEY_ESC; code <= kLastKey; ++code) ::ioctl(file, UI_SET_KEYBIT, code);
  return Create(file, "Test Board");
}

int MakeMouse() {
  const int file = ::open("/dev/uinput", O_WRONLY | O_CLOEXEC);
  ::ioctl(file, UI_SET_EVBIT, EV_KEY);
  for (const int code : {BTN_LEFT, BTN_RIGHT, BTN_MIDDLE, BTN_SIDE, BTN_EXTRA}) ::ioctl(file, UI_SET_KEYBIT, code);
  ::ioctl(file, UI_SET_EVBIT, EV_REL);
  for (const int code : {REL_X, REL_Y, REL_WHEEL, REL_WHEEL_HI_RES}) ::ioctl(file, UI_SET_RELBIT, code);
  return Create(file, "Test Rat");
}

void SetAxis(int file, int code, int least, int most) {
  uinput_abs_setup axis{};
  axis.code = static_cast<unsigned short>(code);
  axis.absinfo.minimum = least;
  axis.absinfo.maximum = most;
  ::ioctl(file, UI_ABS_SETUP, &axis);
}

int MakePad() {
  const int file = ::open("/dev/uinput", O_WRONLY | O_CLOEXEC);
  ::ioctl(file, UI_SET_EVBIT, EV_KEY);
  for (const int code : {BTN_SOUTH, BTN_EAST, BTN_NORTH, BTN_WEST, BTN_TL, BTN_TR, BTN_SELECT, BTN_START, BTN_MODE,
                         BTN_THUMBL, BTN_THUMBR}) {
    ::ioctl(file, UI_SET_KEYBIT, code);
  }
  ::ioctl(file, UI_SET_EVBIT, EV_ABS);
  for (const int code : {ABS_X, ABS_Y, ABS_RX, ABS_RY}) SetAxis(file, code, -32768, 32767);
  for (const int code : {ABS_Z, ABS_RZ}) SetAxis(file, code, 0, 255);
  for (const int code : {ABS_HAT0X, ABS_HAT0Y}) SetAxis(file, code, -1, 1);
  return Create(file, "Test Pad");
}

class Hands {
 public:
  void Play(const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    words >> verb;
    if (verb == "done") {
      words >> verb;
      std::cout << verb << std::endl;
    }
    int a = 0;
    int b = 0;
    words >> a >> b;
    if (verb == "key") Key(a, b);
    if (verb == "rel") Move(a, b);
    if (verb == "wheel") Turn(a);
    if (verb == "wait") std::this_thread::sleep_for(std::chrono::milliseconds(a));
    if (verb == "flood") Flood(a, b);
    if (verb == "race") Race(a, b);
    if (verb == "unplug") ::ioctl(keyboard_, UI_DEV_DESTROY);
    if (verb == "plug_pad") pad_ = MakePad();
    if (verb == "pad") UsePad(EV_KEY, a, b);
    if (verb == "axis") UsePad(EV_ABS, a, b);
    if (verb == "unplug_pad") ::close(pad_);
  }

 private:
  void Key(int code, int value) {
    const int file = code >= BTN_MOUSE ? mouse_ : keyboard_;
    Emit(file, EV_KEY, code, value);
    Report(file);
  }
  void UsePad(int type, int code, int value) {
    Emit(pad_, type, code, value);
    Report(pad_);
  }
  void Flood(int code, int times) {
    for (int i = 0; i < 2 * times; ++i) Key(code, (i + 1) % 2);
  }
  // Printed at the end, so that printing does not disturb the measurement.
  void Race(int code, int times) {
    std::vector<long long> presses;
    for (int i = 0; i < times; ++i) {
      timespec now{};
      clock_gettime(CLOCK_MONOTONIC, &now);
      presses.push_back(now.tv_sec * 1000000LL + now.tv_nsec / 1000);
      Key(code, 1);
      std::this_thread::sleep_for(std::chrono::milliseconds(8));
      Key(code, 0);
      std::this_thread::sleep_for(std::chrono::milliseconds(8));
    }
    for (const long long press : presses) std::cout << "press " << press << '\n';
  }
  void Move(int dx, int dy) {
    Emit(mouse_, EV_REL, REL_X, dx);
    Emit(mouse_, EV_REL, REL_Y, dy);
    Report(mouse_);
  }
  void Turn(int parts) {
    if (parts % 120 == 0) Emit(mouse_, EV_REL, REL_WHEEL, parts / 120);
    Emit(mouse_, EV_REL, REL_WHEEL_HI_RES, parts);
    Report(mouse_);
  }

  const int keyboard_ = MakeKeyboard();
  const int mouse_ = MakeMouse();
  int pad_ = -1;
};

}  // namespace

int main() {
  Hands hands;
  std::cout << "ready" << std::endl;
  for (std::string line; std::getline(std::cin, line);) hands.Play(line);
}
