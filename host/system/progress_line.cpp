#include "host/system/progress_line.h"

#include <chrono>

#include "host/system/console.h"
#include "host/system/terminal.h"

namespace tavi {

namespace {

constexpr std::chrono::seconds kStep(1);

// Moves to the line's start and clears the line.
const QString kEraseLine = QStringLiteral("\r\x1B[K");

}  // namespace

ProgressLine::ProgressLine(const QString& what) : what_(what) {
  if (IsErrorTerminal()) thread_ = std::thread(&ProgressLine::Run, this);
}

ProgressLine::~ProgressLine() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    has_ended_ = true;
  }
  ended_.notify_one();
  thread_.join();
}

void ProgressLine::Run() {
  std::unique_lock<std::mutex> lock(mutex_);
  int seconds = 0;
  while (!ended_.wait_for(lock, kStep, [this] { return has_ended_; })) {
    ++seconds;
    PrintError(kEraseLine + QStringLiteral("%1 (%2 s; Ctrl+C ends it) ").arg(what_).arg(seconds));
  }
  if (seconds > 0) PrintError(kEraseLine);
}

}  // namespace tavi
