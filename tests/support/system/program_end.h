// What ends a program from outside: a signal, or an event of its console.
#ifndef TESTS_SUPPORT_SYSTEM_PROGRAM_END_H_
#define TESTS_SUPPORT_SYSTEM_PROGRAM_END_H_

#include <vector>

#include <QProcess>

namespace tavi {

struct ProgramEnd {
  const char* name;
  unsigned event;  // as this system counts them
  int number;      // of the signal that the program takes it for
};

std::vector<ProgramEnd> ProgramEnds();

// Call it before the program starts: then it has a console of its own where its system needs one.
void MakeEndable(QProcess* program);
void SendEnd(const QProcess& program, const ProgramEnd& end);
void SendEndToThisProgram(const ProgramEnd& end);
// Whether a program that takes no such event was ended by it, from the status as googletest has it.
bool IsStatusOf(int status, const ProgramEnd& end);

}  // namespace tavi

#endif  // TESTS_SUPPORT_SYSTEM_PROGRAM_END_H_
