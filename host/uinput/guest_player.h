// Plays the lines that a host sends.
#ifndef HOST_UINPUT_GUEST_PLAYER_H_
#define HOST_UINPUT_GUEST_PLAYER_H_

#include <functional>
#include <optional>

#include <QSize>

#include "host/uinput/guest_stream.h"
#include "host/uinput/guest_translator.h"

namespace tavi {

struct GuestPlayerSettings {
  QSize surface{1280, 720};    // touch coordinates
  std::optional<int> display;  // whose lines count; without one all do. Texts always do
  bool is_timeline = false;    // the lines are those of a timeline
};

// Not bound to a thread.
class GuestPlayer {
 public:
  // What becomes of the player's results. `events` says what went wrong with them, or nothing.
  struct Outlets {
    std::function<QString(const KernelEvents&)> events;
    std::function<void(const QString&)> problem;  // one line for people
    std::function<void(int ms)> wait;             // until so long after the start, before a line of a timeline
  };

  GuestPlayer(const GuestPlayerSettings& settings, Outlets outlets)
      : settings_(settings), outlets_(std::move(outlets)), translator_(settings.surface) {}

  void Play(const SentLine& line);

  bool had_problem() const { return had_problem_; }

 private:
  void PlayTimed(const SentLine& line);
  void PlayNow(const SentLine& line);
  void Tell(const QString& problem, const QString& line);

  const GuestPlayerSettings settings_;
  const Outlets outlets_;
  GuestTranslator translator_;
  bool had_problem_ = false;
};

}  // namespace tavi

#endif  // HOST_UINPUT_GUEST_PLAYER_H_
