// The loop of a macro.
#ifndef SIMULATORS_MACRO_MACRO_LOOP_H_
#define SIMULATORS_MACRO_MACRO_LOOP_H_

namespace taviinputmanager {

// There is one: a loop inside a loop takes its place. It outlives the list that opened it, so that a loop left open is
// still there for the next list of its key. Indexes are of the list in progress.
class MacroLoop {
 public:
  static constexpr int kUntilRelease = 0x7FFFFFFF;  // as a count

  // `body` is the first command of the loop.
  void Start(int count, int body) {
    count_ = count;
    done_ = 0;
    start_ = body;
  }

  // At a stop_loop with the command `last` before it. True when the body runs again, from GetStart; else the loop is
  // over. A body of one command, or of none, never runs again.
  bool Repeats(int last) {
    ++done_;
    if (start_ >= 1 && last > start_ && count_ > done_) return true;
    *this = MacroLoop();
    return false;
  }

  int GetStart() const { return start_; }
  bool IsUntilRelease() const { return count_ == kUntilRelease; }
  // The next stop_loop is the last.
  void EndSoon() { count_ = done_; }

 private:
  int count_ = 0;
  int done_ = 0;   // times that the body ran
  int start_ = 0;  // 0 when no loop is open
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_LOOP_H_
