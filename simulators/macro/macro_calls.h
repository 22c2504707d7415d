// The macros that run nested inside each other.
#ifndef SIMULATORS_MACRO_MACRO_CALLS_H_
#define SIMULATORS_MACRO_MACRO_CALLS_H_

#include <cstddef>
#include <vector>

#include <QPointer>
#include <QtGlobal>

namespace taviinputmanager {

class MacroSequentialTapAsyncWorker;

// A command may inject input that presses or releases macros, and their lists run before the command after it:
//
//   F1 up  a1 - keyboard_press:F2 ------------------------------- a3
//                  b1 - keyboard_release:F1 ------ b3
//                          a1 - keyboard_press:F2             F1 again, from the top: a3 above is not reached
//
// The first few lists are nested on the thread's stack, like calls. Deeper ones are queued until the command that
// started them has returned, and run before the command after it: the order is the same, and a program may be nested as
// deep as it likes. A program that recurses endlessly is stopped after so many releases or so much time that no other
// program reaches the limit.
//
// Main thread.
class MacroCalls {
 public:
  static MacroCalls* GetInstance() {
    static MacroCalls instance;
    return &instance;
  }

  // Runs the list of `worker` until it pauses or ends: at once, or after the current command.
  void Run(MacroSequentialTapAsyncWorker* worker);
  // Whether the current command has queued lists that must run before the next command.
  bool HasWaiting() const { return calls_.size() > height_; }
  // Runs them now. Must be called before anything else happens to a macro.
  void RunWaiting();
  // Whether a release may replace the current list of `worker`; false stops an endless program.
  bool MayRestart(const MacroSequentialTapAsyncWorker* worker);

 private:
  MacroCalls();
  ~MacroCalls();

  void RunDownTo(std::size_t height);

  std::vector<QPointer<MacroSequentialTapAsyncWorker>> calls_;  // the innermost last
  std::size_t height_ = 0;                                      // size of calls_ when the current command began
  int depth_ = 0;                                               // lists on the thread's stack
  int restarts_ = 0;                                            // since the outermost list began
  qint64 first_restart_ms_ = 0;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_CALLS_H_
