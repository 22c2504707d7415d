// A process that can be stopped at each of its system calls, and killed there.
#ifndef TESTS_RECORD_STEPPED_PROCESS_H_
#define TESTS_RECORD_STEPPED_PROCESS_H_

#include <functional>
#include <sys/types.h>

namespace taviinputmanager {

// Runs `what` in a child process, which first stops at its beginning. Linux. Killed, if necessary, with this object.
class SteppedProcess {
 public:
  explicit SteppedProcess(const std::function<void()>& what);
  SteppedProcess(const SteppedProcess&) = delete;
  SteppedProcess& operator=(const SteppedProcess&) = delete;
  ~SteppedProcess() { Kill(); }

  // Whether this system allows single-stepping a process at all.
  bool CanBeStepped() const { return is_running_; }
  // Continues to the next start or return of a call, this many times. False if the process ended before.
  bool Step(int count = 1);
  // The call that starts here, by its number and its third argument; without a number if one returns.
  struct Call {
    long number = -1;
    unsigned long third_argument = 0;
  };
  Call BeginningCall() const;
  // Continues to the end. False if it was killed on the way.
  bool Finish();
  // Continues with no file growing beyond `bytes`: the write that would exceed it is cut short, and the next one kills.
  bool FinishWithin(unsigned bytes);
  void Kill();

 private:
  int Wait();  // for its next stop or end; a status as waitpid has it

  pid_t child_;
  bool is_running_ = false;
};

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_STEPPED_PROCESS_H_
