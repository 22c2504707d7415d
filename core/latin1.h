// Constant words.
#ifndef CORE_LATIN1_H_
#define CORE_LATIN1_H_

#include <QLatin1String>
#include <cstddef>

namespace taviinputmanager {

// A word that is known at compile time. QLatin1String's own constructor uses a length function that not every compiler
// can evaluate then.
template <std::size_t kSize>
constexpr QLatin1String Latin1(const char (&word)[kSize]) {
  return QLatin1String(word, kSize - 1);  // without the NUL
}

}  // namespace taviinputmanager

#endif  // CORE_LATIN1_H_
