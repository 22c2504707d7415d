// The macros that are under way inside each other.
#ifndef SIMULATORS_MACRO_MACRO_CALLS_H_
#define SIMULATORS_MACRO_MACRO_CALLS_H_

#include <cstddef>
#include <vector>

#include <QPointer>
#include <QtGlobal>

namespace taviinputmanager {

class MacroSequentialTapAsyncWorker;

// A command may inject input that presses or releases macros, and their lists run before the command behind it:
//
//   F1 up  a1 - keyboard_press:F2 ------------------------------- a3
//                  b1 - keyboard_release:F1 ------ b3
//                          a1 - keyboard_press:F2             F1 again, from the top: a3 above is not reached
//
// The first few lists run inside each other on the thread's stack, as calls do. Deeper ones wait here until the command
// that led to them has returned, and come before the one behind it: the order is the same, and a program may be as deep
// as it likes. A program that comes back to itself without end is given up after so many releases or so much time that
// no other one gets there.
//
// Main thread.
class MacroCalls {
 public:
  static MacroCalls* GetInstance() {
    static MacroCalls instance;
    return &instance;
  }

  // Runs the list of `worker` until it pauses or ends: at once, or behind the command under way.
  void Run(MacroSequentialTapAsyncWorker* worker);
  // Whether the command under way has left lists to be run before the next.
  bool HasWaiting() const { return calls_.size() > height_; }
  // Runs these now. To be called before anything else happens to a macro.
  void RunWaiting();
  // Whether a release may replace the list in progress of `worker`; false to give up a program without end.
  bool MayRestart(const MacroSequentialTapAsyncWorker* worker);

 private:
  MacroCalls();
  ~MacroCalls();

  void RunDownTo(std::size_t height);

  std::vector<QPointer<MacroSequentialTapAsyncWorker>> calls_;  // the innermost last
  std::size_t height_ = 0;                                      // of calls_ as the command under way began
  int depth_ = 0;                                               // of the thread's stack, in lists
  int restarts_ = 0;                                            // since the outermost list began
  qint64 first_restart_ms_ = 0;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_CALLS_H_
