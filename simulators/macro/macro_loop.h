// The loop of a macro.
#ifndef SIMULATORS_MACRO_MACRO_LOOP_H_
#define SIMULATORS_MACRO_MACRO_LOOP_H_

namespace taviinputmanager {

// There is only one: a loop inside a loop replaces it. It outlives the list that opened it, so that an unclosed loop
// still exists for the next list of its key. Indexes refer to the current list.
class MacroLoop {
 public:
  static constexpr int kUntilRelease = 0x7FFFFFFF;  // as a count

  // `body` is the first command of the loop.
  void Start(int count, int body) {
    count_ = count;
    done_ = 0;
    start_ = body;
  }

  // At a stop_loop after the command `last`. Returns true if the body runs again, from GetStart; otherwise the loop is
  // over. A body of one command or none never runs again.
  bool Repeats(int last) {
    ++done_;
    if (start_ >= 1 && last > start_ && count_ > done_) return true;
    *this = MacroLoop();
    return false;
  }

  int GetStart() const { return start_; }
  bool IsUntilRelease() const { return count_ == kUntilRelease; }
  // The next stop_loop ends the loop.
  void EndSoon() { count_ = done_; }

 private:
  int count_ = 0;
  int done_ = 0;   // number of completed runs of the body
  int start_ = 0;  // 0 if no loop is open
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_LOOP_H_
