// Which of several operations is the newest.
#ifndef CORE_TURNS_H_
#define CORE_TURNS_H_

namespace taviinputmanager {

// A host may feed input from inside any function of its own that the library calls. So an operation that sends more
// than one line, or asks the host something on the way, takes a turn, and gives up where a newer one has begun
// meanwhile: that one knows better what is held.
class Turns {
 public:
  // Begins an operation; the ones before it are over.
  unsigned Begin() { return ++newest_; }
  // Of the operation under way.
  unsigned Current() const { return newest_; }
  bool IsOver(unsigned turn) const { return turn != newest_; }

 private:
  unsigned newest_ = 0;
};

}  // namespace taviinputmanager

#endif  // CORE_TURNS_H_
