#include <csignal>
#include <mutex>
#include <pthread.h>
#include <thread>
#include <unistd.h>

#include "host/system/interruption.h"
#include "host/system/terminal.h"

namespace tavi {

namespace {

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
  while (sigwait(&signals, &number) == 0) React(number, EndBySignal);
}

void StartWaiting() {
  const sigset_t signals = SignalsToTake();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);  // threads that are started later inherit it
  std::thread(WaitForSignals, signals).detach();
}

}  // namespace

void ListenForInterruptions() {
  static std::once_flag waits;
  std::call_once(waits, StartWaiting);
}

void EndWithReader() { Unblock(SIGPIPE); }

void GoOnWithoutReader() { std::signal(SIGPIPE, SIG_IGN); }

bool IsErrorTerminal() { return isatty(STDERR_FILENO) == 1; }

void MakeStreamsPlain() {}

}  // namespace tavi
