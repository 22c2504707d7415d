#ifndef GUEST_PROGRAM_EXIT_STATUS_H_
#define GUEST_PROGRAM_EXIT_STATUS_H_

namespace taviguest {

// Exit statuses of the program.
constexpr int kExitDone = 0;
constexpr int kExitProblem = 1;  // a line was not played, or input or output failed
constexpr int kExitUsage = 2;    // the command line, or a file that it names, cannot be used

// For a program that was ended by a signal.
constexpr int ExitStatusOfSignal(int number) { return 128 + number; }

}  // namespace taviguest

#endif  // GUEST_PROGRAM_EXIT_STATUS_H_
