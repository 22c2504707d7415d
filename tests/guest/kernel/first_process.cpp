// The first process of a small machine that kernel_programs_test.py boots. For each program in /guests it starts that,
// reads its screen, sends it /lines, kills it when the finger of the last line is down, and prints what the screen did
// until it was gone:
//
//   begin armv7
//   places: screen keyboard pointer
//   3 47 2
//   gone
//
// An event is its type, code and value. The program uses no other file of the project.
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <linux/input.h>
#include <string>
#include <sys/mount.h>
#include <sys/reboot.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kLastTrackingId = 19;
constexpr int kDevicesAtFirst = 3;

void Mount(const char* kind, const char* place) {
  mkdir(place, 0755);
  mount(kind, place, kind, 0, nullptr);
}

void LoadModule(const char* name) {
  const int file = open(name, O_RDONLY | O_CLOEXEC);
  if (syscall(SYS_finit_module, file, "", 0) != 0) std::perror(name);
  close(file);
}

std::vector<std::string> Programs() {
  std::vector<std::string> names;
  DIR* folder = opendir("/guests");
  while (const dirent* entry = readdir(folder)) {
    if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
  }
  closedir(folder);
  std::sort(names.begin(), names.end());
  return names;
}

struct Guest {
  pid_t process = 0;
  FILE* lines = nullptr;   // what it reads
  FILE* places = nullptr;  // its output
};

Guest Start(const std::string& program) {
  int lines[2];
  int places[2];
  if (pipe2(lines, O_CLOEXEC) != 0 || pipe2(places, O_CLOEXEC) != 0) std::abort();
  const pid_t process = fork();
  if (process == 0) {
    dup2(lines[0], STDIN_FILENO);
    dup2(places[1], STDOUT_FILENO);
    execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  close(lines[0]);
  close(places[1]);
  return {process, fdopen(lines[1], "w"), fdopen(places[0], "r")};
}

// The screen, open for reading.
int FindScreen(FILE* places) {
  char word[64];
  char node[64];
  int screen = -1;
  std::printf("places:");
  for (int i = 0; i < kDevicesAtFirst && std::fscanf(places, "%63s %63s", word, node) == 2; ++i) {
    std::printf(" %s", word);
    if (std::strcmp(word, "screen") == 0) screen = open(node, O_RDONLY | O_CLOEXEC);
  }
  std::printf("\n");
  return screen;
}

void SendLines(FILE* lines) {
  FILE* file = std::fopen("/lines", "r");
  for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file)) std::fputc(byte, lines);
  std::fclose(file);
  std::fflush(lines);
}

// Waits until the screen is gone. The program is killed after the frame that puts the last finger down.
void Watch(int screen, pid_t process) {
  bool is_last_down = false;
  input_event event;
  while (read(screen, &event, sizeof(event)) == sizeof(event)) {
    std::printf("%d %d %d\n", event.type, event.code, event.value);
    is_last_down = is_last_down || (event.code == ABS_MT_TRACKING_ID && event.value == kLastTrackingId);
    if (is_last_down && event.type == EV_SYN) kill(process, SIGKILL);
  }
  std::printf("gone\n");
}

void Try(const std::string& name) {
  std::printf("\nbegin %s\n", name.c_str());  // the firmware's own line is incomplete
  const Guest guest = Start("/guests/" + name);
  const int screen = FindScreen(guest.places);
  SendLines(guest.lines);
  Watch(screen, guest.process);
  waitpid(guest.process, nullptr, 0);
  std::printf("end\n");
}

}  // namespace

int main() {
  Mount("devtmpfs", "/dev");
  Mount("proc", "/proc");
  Mount("sysfs", "/sys");
  const int console = open("/dev/console", O_RDWR);
  for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(console, file);
  LoadModule("/evdev.ko");
  LoadModule("/uinput.ko");
  for (const std::string& name : Programs()) Try(name);
  std::fflush(stdout);
  tcdrain(STDOUT_FILENO);
  reboot(RB_POWER_OFF);
}
