// Finds out which of several operations is the newest.
#ifndef CORE_TURNS_H_
#define CORE_TURNS_H_

namespace taviinputmanager {

// A host may feed input from inside any of its functions that the library calls. So an operation that sends more than
// one line, or calls the host in between, takes a turn, and stops if a newer operation has begun meanwhile: that one
// knows better what is held.
class Turns {
 public:
  // Begins an operation; the previous ones are over.
  unsigned Begin() { return ++newest_; }
  // Of the current operation.
  unsigned Current() const { return newest_; }
  bool IsOver(unsigned turn) const { return turn != newest_; }

 private:
  unsigned newest_ = 0;
};

}  // namespace taviinputmanager

#endif  // CORE_TURNS_H_
