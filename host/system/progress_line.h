#ifndef HOST_SYSTEM_PROGRESS_LINE_H_
#define HOST_SYSTEM_PROGRESS_LINE_H_

#include <condition_variable>
#include <mutex>
#include <thread>

#include <QString>

namespace tavi {

// A line on the terminal that says what takes so long, and how long it has taken. Nothing is shown for work of less
// than a second, and nothing is written if standard error is not a terminal.
//
// Threads: used on one thread; a thread of its own writes.
class ProgressLine {
 public:
  // "reading day.json"
  explicit ProgressLine(const QString& what);
  // Removes the line.
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

 private:
  void Run();

  const QString what_;
  std::mutex mutex_;
  std::condition_variable ended_;
  bool has_ended_ = false;  // guarded by mutex_
  std::thread thread_;
};

}  // namespace tavi

#endif  // HOST_SYSTEM_PROGRESS_LINE_H_
