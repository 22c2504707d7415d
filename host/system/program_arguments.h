#ifndef HOST_SYSTEM_PROGRAM_ARGUMENTS_H_
#define HOST_SYSTEM_PROGRAM_ARGUMENTS_H_

#include <QStringList>

namespace tavi {

// The words behind the program's name, whole where `argv` has not all of their letters.
QStringList ProgramArguments(int argc, char** argv);

}  // namespace tavi

#endif  // HOST_SYSTEM_PROGRAM_ARGUMENTS_H_
