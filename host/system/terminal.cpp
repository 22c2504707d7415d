#include "host/system/terminal.h"

#include <mutex>
#include <utility>

#include "host/system/interruption.h"

namespace tavi {

namespace {

struct Reactions {
  std::mutex mutex;  // of both, locked while one runs
  std::function<void()> clean_up;
  std::function<void(int)> take;
};

// Never destroyed: the thread that receives interruptions outlives everything.
Reactions* GetReactions() {
  static auto* reactions = new Reactions;
  return reactions;
}

template <typename Reaction>
void SetReaction(Reaction Reactions::*which, Reaction reaction) {
  ListenForInterruptions();
  const std::lock_guard<std::mutex> lock(GetReactions()->mutex);
  GetReactions()->*which = std::move(reaction);
}

}  // namespace

void React(int number, void (*end)(int number)) {
  Reactions* reactions = GetReactions();
  const std::lock_guard<std::mutex> lock(reactions->mutex);
  if (reactions->take) {
    reactions->take(number);
    return;
  }
  if (reactions->clean_up) reactions->clean_up();
  end(number);
}

void SetCleanUp(std::function<void()> clean_up) { SetReaction(&Reactions::clean_up, std::move(clean_up)); }

void SetInterruptionTaker(std::function<void(int)> take) { SetReaction(&Reactions::take, std::move(take)); }

}  // namespace tavi
