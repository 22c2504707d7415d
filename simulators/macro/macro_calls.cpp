#include "simulators/macro/macro_calls.h"

#include <algorithm>

#include <QScopedValueRollback>

#include "core/clock.h"
#include "simulators/macro/macro_sequential_tap_async_worker.h"

namespace taviinputmanager {
namespace {

constexpr int kMostDepth = 32;         // some 10 kB of stack each, in the worst case
constexpr int kMostRestarts = 100000;  // about a tenth of a second
constexpr qint64 kMostMs = 10000;      // for cycles that block: a wheel notch takes 50 ms

}  // namespace

MacroCalls::MacroCalls() = default;

MacroCalls::~MacroCalls() = default;

void MacroCalls::Run(MacroSequentialTapAsyncWorker* worker) {
  calls_.emplace_back(worker);
  if (depth_ < kMostDepth) RunDownTo(calls_.size() - 1);
}

void MacroCalls::RunWaiting() {
  if (HasWaiting()) RunDownTo(height_);
}

void MacroCalls::RunDownTo(std::size_t height) {
  if (depth_ == 0) restarts_ = 0;
  const QScopedValueRollback<int> deeper(depth_, depth_ + 1);
  const QScopedValueRollback<std::size_t> back(height_);
  while (calls_.size() > height) {
    height_ = calls_.size();
    MacroSequentialTapAsyncWorker* worker = calls_.back();
    const bool goes_on = worker && worker->Step();
    if (!goes_on) calls_.erase(calls_.begin() + static_cast<std::ptrdiff_t>(height_) - 1);
  }
}

bool MacroCalls::MayRestart(const MacroSequentialTapAsyncWorker* worker) {
  const bool is_under_way = std::find(calls_.rbegin(), calls_.rend(), worker) != calls_.rend();
  if (!is_under_way) return true;
  const qint64 now = Clock::NowMs();
  if (restarts_++ == 0) first_restart_ms_ = now;
  return restarts_ <= kMostRestarts && now - first_restart_ms_ <= kMostMs;
}

}  // namespace taviinputmanager
