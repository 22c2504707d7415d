// The terminal that the program was started from.
#ifndef HOST_SYSTEM_TERMINAL_H_
#define HOST_SYSTEM_TERMINAL_H_

#include <functional>

namespace tavi {

// Whether standard error is read by a person right now.
bool IsErrorTerminal();

// A reader of the program's output that is gone ends the program, quietly and by the signal, as it ends others. What
// was loaded with the program may have blocked that signal. To be called first: threads and programs that are started
// later take it over.
void EndWithReader();

// From here on it does not: for programs whose output is not what they are for.
void GoOnWithoutReader();

// What is to be done before the program ends when it is interrupted (Ctrl+C) or told to end. `clean_up` is called on a
// thread of its own while the others run on, and then the program ends as it would have. One at a time; an empty
// function takes it back, and waits for one that is at work.
//
// To be called first while the program has no other threads, which would take the interruption otherwise. A program
// that was started with interruptions ignored is not interrupted.
void SetCleanUp(std::function<void()> clean_up);

// From here on an interruption, being told to end and the end of the terminal do not end the program: `take` is called
// with the signal's number, on a thread of its own, and what is to follow is its business. It takes the place of a
// clean-up. An empty function gives that back. To be called first while the program has no other threads.
void SetInterruptionTaker(std::function<void(int number)> take);

// The exit status of a program that ended because of a signal.
constexpr int ExitStatusOfSignal(int number) { return 128 + number; }

// What is read from the standard streams and written to them goes through as it is, and a terminal shows it as UTF-8.
// To be called first.
void MakeStreamsPlain();

}  // namespace tavi

#endif  // HOST_SYSTEM_TERMINAL_H_
