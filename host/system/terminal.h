// The terminal that the program was started from.
#ifndef HOST_SYSTEM_TERMINAL_H_
#define HOST_SYSTEM_TERMINAL_H_

#include <functional>

namespace tavi {

// Whether standard error is a terminal with a user.
bool IsErrorTerminal();

// When nobody reads the program's output anymore, the write ends the program silently by the signal, as it does for
// other programs. A library may have blocked that signal while loading. Call it first: threads and programs that are
// started later inherit the setting.
void EndWithReader();

// From now on it does not end the program: for programs whose main purpose is not their output.
void GoOnWithoutReader();

// Sets what to do before the program ends by an interruption (Ctrl+C) or a termination signal. `clean_up` is called on
// a thread of its own while the others continue, and then the program ends as it would have. There is one at a time; an
// empty function removes it, and waits for one that is running.
//
// The first call must come before the program has other threads, which would receive the signals otherwise. A program
// that was started with interruptions ignored is not interrupted.
void SetCleanUp(std::function<void()> clean_up);

// From now on interruptions, termination signals and hangups do not end the program: `take` is called with the signal's
// number, on a thread of its own, and decides what to do. It replaces a clean-up. An empty function restores the
// default. The first call must come before the program has other threads.
void SetInterruptionTaker(std::function<void(int number)> take);

// The exit status of a program that was ended by a signal.
constexpr int ExitStatusOfSignal(int number) { return 128 + number; }

// From now on the standard streams are read and written unchanged, and a terminal shows them as UTF-8. Call it first.
void MakeStreamsPlain();

}  // namespace tavi

#endif  // HOST_SYSTEM_TERMINAL_H_
