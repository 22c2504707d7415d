// A functor that runs once.
#ifndef SIMULATORS_ONCE_H_
#define SIMULATORS_ONCE_H_

#include <utility>

namespace taviinputmanager {

// Calls `function` the first time and does nothing afterwards. A worker reports its end again to a stop that was queued
// when the run ended; its owner must react only once per run.
template <typename Function>
auto Once(Function function) {
  return [function = std::move(function), done = false](auto... arguments) mutable {
    if (!std::exchange(done, true)) function(arguments...);
  };
}

}  // namespace taviinputmanager

#endif  // SIMULATORS_ONCE_H_
