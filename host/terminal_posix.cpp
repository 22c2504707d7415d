#include <csignal>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "host/terminal.h"

namespace tavi {

namespace {

struct CleanUp {
  std::mutex mutex;  // of `function`, held while it runs
  std::function<void()> function;
};

// Never destroyed: the thread that waits for signals outlives everything.
CleanUp* GetCleanUp() {
  static auto* clean_up = new CleanUp;
  return clean_up;
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

// Ends the program by the signal itself, so that whoever started it knows.
void WaitForSignal(sigset_t signals) {
  int number = 0;
  if (sigwait(&signals, &number) != 0) return;
  const std::lock_guard<std::mutex> lock(GetCleanUp()->mutex);
  if (GetCleanUp()->function) GetCleanUp()->function();
  std::signal(number, SIG_DFL);
  Unblock(number);
  raise(number);
}

void StartWaiting() {
  const sigset_t signals = SignalsToTake();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);  // threads that are started from here on inherit it
  std::thread(WaitForSignal, signals).detach();
}

}  // namespace

void EndWithReader() { Unblock(SIGPIPE); }

bool IsErrorTerminal() { return isatty(STDERR_FILENO) == 1; }

void SetCleanUp(std::function<void()> clean_up) {
  static std::once_flag once;
  std::call_once(once, StartWaiting);
  const std::lock_guard<std::mutex> lock(GetCleanUp()->mutex);
  GetCleanUp()->function = std::move(clean_up);
}

}  // namespace tavi
