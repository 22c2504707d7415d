// A functor that runs once.
#ifndef SIMULATORS_ONCE_H_
#define SIMULATORS_ONCE_H_

#include <utility>

namespace taviinputmanager {

// Runs `function` at the first call and does nothing at any other. A worker tells its end again to a stop that was on
// its way when the run ended; what its owner does then is done once a run.
template <typename Function>
auto Once(Function function) {
  return [function = std::move(function), done = false](auto... arguments) mutable {
    if (!std::exchange(done, true)) function(arguments...);
  };
}

}  // namespace taviinputmanager

#endif  // SIMULATORS_ONCE_H_
