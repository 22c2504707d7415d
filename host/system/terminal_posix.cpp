#include <csignal>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "host/system/terminal.h"

namespace tavi {

namespace {

struct Reactions {
  std::mutex mutex;  // of both, locked while one runs
  std::function<void()> clean_up;
  std::function<void(int)> take;
};

std::once_flag waits;  // for signals

// Never destroyed: the thread that waits for signals outlives everything.
Reactions* GetReactions() {
  static auto* reactions = new Reactions;
  return reactions;
}

sigset_t SignalsToTake() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    if (action.sa_handler != SIG_IGN) sigaddset(&signals, number);
  }
  return signals;
}

void Unblock(int number) {
  sigset_t only;
  sigemptyset(&only);
  sigaddset(&only, number);
  pthread_sigmask(SIG_UNBLOCK, &only, nullptr);
}

// Ends the program by the signal itself, so that its parent process sees it.
void EndBySignal(int number) {
  std::signal(number, SIG_DFL);
  Unblock(number);
  raise(number);
}

void WaitForSignals(sigset_t signals) {
  int number = 0;
  while (sigwait(&signals, &number) == 0) {
    Reactions* reactions = GetReactions();
    const std::lock_guard<std::mutex> lock(reactions->mutex);
    if (reactions->take) {
      reactions->take(number);
      continue;
    }
    if (reactions->clean_up) reactions->clean_up();
    EndBySignal(number);
  }
}

void StartWaiting() {
  const sigset_t signals = SignalsToTake();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);  // threads that are started later inherit it
  std::thread(WaitForSignals, signals).detach();
}

// The first call starts a thread that waits for signals.
template <typename Reaction>
void SetReaction(Reaction Reactions::*which, Reaction reaction) {
  std::call_once(waits, StartWaiting);
  const std::lock_guard<std::mutex> lock(GetReactions()->mutex);
  GetReactions()->*which = std::move(reaction);
}

}  // namespace

void EndWithReader() { Unblock(SIGPIPE); }

void GoOnWithoutReader() { std::signal(SIGPIPE, SIG_IGN); }

bool IsErrorTerminal() { return isatty(STDERR_FILENO) == 1; }

void SetCleanUp(std::function<void()> clean_up) { SetReaction(&Reactions::clean_up, std::move(clean_up)); }

void SetInterruptionTaker(std::function<void(int)> take) { SetReaction(&Reactions::take, std::move(take)); }

void MakeStreamsPlain() {}

}  // namespace tavi
