// Holds a file like a replay, or tries what another program could do to it. For Windows.
//
//   hold_record hold PATH     prints "held" or "not held", waits for the end of its input, and closes it
//   hold_record try PATH      prints "read yes write no delete no", as far as each is allowed; deletes nothing
#include <cstdio>
#include <string>
#include <windows.h>

#include <QString>

#include "record/file_hold.h"

namespace {

// A path with slashes, like Qt's; the characters of these tests are ASCII.
std::u16string Wide(const char* path) {
  const std::string text(path);
  return std::u16string(text.begin(), text.end());
}

int Hold(const char* path) {
  const taviinputmanager::FileHandle file = taviinputmanager::HoldFile(QString(Wide(path)));
  std::puts(file == taviinputmanager::kNoFile ? "not held" : "held");
  std::fflush(stdout);
  if (file == taviinputmanager::kNoFile) return 0;
  while (std::getchar() != EOF) {
  }
  taviinputmanager::ReleaseFile(file);
  return 0;
}

// Shares everything, so that only the holder can prevent access.
const char* Opens(const char* path, DWORD access) {
  const HANDLE file = CreateFileA(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION ? "no" : "error";
  CloseHandle(file);
  return "yes";
}

int Try(const char* path) {
  std::printf("read %s write %s delete %s\n", Opens(path, GENERIC_READ), Opens(path, GENERIC_WRITE),
              Opens(path, DELETE));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::string command(argv[1]);
  if (command == "hold") return Hold(argv[2]);
  return command == "try" ? Try(argv[2]) : 2;
}
