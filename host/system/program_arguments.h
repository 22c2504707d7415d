#ifndef HOST_SYSTEM_PROGRAM_ARGUMENTS_H_
#define HOST_SYSTEM_PROGRAM_ARGUMENTS_H_

#include <QStringList>

namespace tavi {

// The arguments after the program's name, complete even where `argv` cannot represent all of their characters.
QStringList ProgramArguments(int argc, char** argv);

}  // namespace tavi

#endif  // HOST_SYSTEM_PROGRAM_ARGUMENTS_H_
