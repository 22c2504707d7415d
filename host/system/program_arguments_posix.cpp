#include "host/system/program_arguments.h"

namespace tavi {

QStringList ProgramArguments(int argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words += QString::fromLocal8Bit(argv[i]);
  return words;
}

}  // namespace tavi
