#include <windows.h>
#include <memory>

#include "host/system/program_arguments.h"

namespace tavi {

// `argv` can only represent characters of the system's code page.
QStringList ProgramArguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> all(CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  QStringList words;
  for (int i = 1; all && i < count; ++i) words += QString::fromWCharArray(all.get()[i]);
  return words;
}

}  // namespace tavi
