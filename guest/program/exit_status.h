#ifndef GUEST_PROGRAM_EXIT_STATUS_H_
#define GUEST_PROGRAM_EXIT_STATUS_H_

namespace taviguest {

// Exit statuses of the program.
constexpr int kExitDone = 0;
constexpr int kExitProblem = 1;  // a line was not played, or not all could be read or written
constexpr int kExitUsage = 2;    // the command line, or what it names, cannot be used

// Of a program that ended because of a signal.
constexpr int ExitStatusOfSignal(int number) { return 128 + number; }

}  // namespace taviguest

#endif  // GUEST_PROGRAM_EXIT_STATUS_H_
