// The invariants of a target.
#ifndef FUZZ_CHECK_H_
#define FUZZ_CHECK_H_

#include <cstdio>
#include <cstdlib>

#include <QString>

namespace taviinputmanager::fuzz {

// Ends the program, and with it the input, like a crash: the input is kept and can be played again.
inline void Check(bool is_true, const QString& what) {
  if (is_true) return;
  std::fprintf(stderr, "Not as it has to be: %s\n", qUtf8Printable(what));
  std::abort();
}

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_CHECK_H_
