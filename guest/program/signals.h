// Being interrupted (Ctrl+C), told to end, and losing the terminal, as something that can be waited for.
#ifndef GUEST_PROGRAM_SIGNALS_H_
#define GUEST_PROGRAM_SIGNALS_H_

#include <csignal>

namespace taviguest {

// One at a time, and made while the process has no other threads, which would take the signals otherwise. From then on
// these signals end nothing; with the object their old ways come back. A program that was started with one of them
// ignored goes on ignoring it.
class Signals {
 public:
  Signals();
  Signals(const Signals&) = delete;
  Signals& operator=(const Signals&) = delete;
  ~Signals();

  // Becomes readable when one has come.
  int file() const { return file_; }

  // The first that came, by its number; waits so long for one, 0 being for none. 0: none came.
  int Wait(int ms);

 private:
  sigset_t before_;
  int file_ = -1;
  int came_ = 0;
};

}  // namespace taviguest

#endif  // GUEST_PROGRAM_SIGNALS_H_
