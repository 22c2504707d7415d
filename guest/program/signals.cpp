#include "guest/program/signals.h"

#include <initializer_list>
#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace taviguest {

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

}  // namespace

Signals::Signals() {
  const sigset_t signals = SignalsToTake();
  pthread_sigmask(SIG_BLOCK, &signals, &before_);
  file_ = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

Signals::~Signals() {
  close(file_);
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

int Signals::Wait(int ms) {
  pollfd polled{file_, POLLIN, 0};
  if (came_ == 0 && poll(&polled, 1, ms) > 0) {
    signalfd_siginfo info{};
    if (read(file_, &info, sizeof(info)) == sizeof(info)) came_ = static_cast<int>(info.ssi_signo);
  }
  return came_;
}

}  // namespace taviguest
