// A process that can be stopped at each of its calls of the system, and ended there.
#ifndef TESTS_RECORD_STEPPED_PROCESS_H_
#define TESTS_RECORD_STEPPED_PROCESS_H_

#include <functional>
#include <sys/types.h>

namespace taviinputmanager {

// Does `what` in a child, which stands at its beginning at first. Linux. Killed, if need be, with this object.
class SteppedProcess {
 public:
  explicit SteppedProcess(const std::function<void()>& what);
  SteppedProcess(const SteppedProcess&) = delete;
  SteppedProcess& operator=(const SteppedProcess&) = delete;
  ~SteppedProcess() { Kill(); }

  // Whether this system lets a process be stepped at all.
  bool CanBeStepped() const { return is_running_; }
  // On to where the next call begins or returns, so many times. False when the end came before.
  bool Step(int count = 1);
  // The call that begins here, by its number and its third argument; without a number where one returns.
  struct Call {
    long number = -1;
    unsigned long third_argument = 0;
  };
  Call BeginningCall() const;
  // On to the end. False when it was killed on the way.
  bool Finish();
  // On with no file growing beyond `bytes`: the write that would cross that is cut short, the next one deadly.
  bool FinishWithin(unsigned bytes);
  void Kill();

 private:
  int Wait();  // for its next stop or end; a status as waitpid has it

  pid_t child_;
  bool is_running_ = false;
};

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_STEPPED_PROCESS_H_
