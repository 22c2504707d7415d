// Plays the lines of a host.
#ifndef GUEST_GUEST_PLAYER_H_
#define GUEST_GUEST_PLAYER_H_

#include <functional>
#include <string>
#include <string_view>

#include "guest/line/guest_options.h"
#include "guest/line/guest_stream.h"
#include "guest/translation/guest_translator.h"

namespace taviguest {

// Not bound to a thread.
class GuestPlayer {
 public:
  // The receiver of the player's results. `events` returns its error, or an empty string.
  struct Outlets {
    std::function<std::string(const KernelEvents&)> events;
    std::function<void(const std::string&)> problem;  // one line, for display
  };

  GuestPlayer(const GuestOptions& options, Outlets outlets)
      : display_(options.display), outlets_(std::move(outlets)), translator_(options) {}

  void Play(const SentLine& line);
  // A line of a timeline; first calls `wait` with its time since the start, which returns whether to play it.
  void PlayTimed(const SentLine& line, const std::function<bool(int ms)>& wait);

  void LiftAll();

  bool had_problem() const { return had_problem_; }

 private:
  bool IsWhole(const SentLine& line);
  void Tell(const std::string& problem, std::string_view line);

  const std::optional<int> display_;
  const Outlets outlets_;
  GuestTranslator translator_;
  bool had_problem_ = false;
};

}  // namespace taviguest

#endif  // GUEST_GUEST_PLAYER_H_
