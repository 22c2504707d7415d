// Interruption (Ctrl+C), termination and hangup as events to wait for.
#ifndef GUEST_PROGRAM_SIGNALS_H_
#define GUEST_PROGRAM_SIGNALS_H_

#include <csignal>

namespace taviguest {

// Only one may exist at a time, and it must be created while the process has no other threads, which would receive the
// signals otherwise. From then on these signals do not end the program; destruction restores the previous handling. A
// signal that was ignored at the start stays ignored.
class Signals {
 public:
  Signals();
  Signals(const Signals&) = delete;
  Signals& operator=(const Signals&) = delete;
  ~Signals();

  // Becomes readable when a signal has arrived.
  int file() const { return file_; }

  // The number of the first signal that arrived; waits up to this long, 0 not at all. 0: none arrived.
  int Wait(int ms);

 private:
  sigset_t before_;
  int file_ = -1;
  int came_ = 0;
};

}  // namespace taviguest

#endif  // GUEST_PROGRAM_SIGNALS_H_
