// Mirroring: copies of the primary display's lines, for other instances.
#ifndef CORE_INPUT_SYNC_MANAGER_H_
#define CORE_INPUT_SYNC_MANAGER_H_

#include <atomic>
#include <mutex>

#include <QString>
#include <QVector>

#include "core/host_functions.h"
#include "taviinputmanager/types.h"

namespace taviinputmanager {

// Main thread, except the lines of a replay that ends, which are mirrored on its own thread.
class InputSyncManager {
 public:
  static InputSyncManager* GetInstance() {
    static InputSyncManager instance;
    return &instance;
  }

  // Each target exists once, in the order of adding.
  void StartSync(const QString& target);
  void StopSync(const QString& target);

  // Passes a line without display prefix and all targets to the host, if there are a function and a target.
  void SyncEvent(const QString& command) const;
  // Whether the above would do anything.
  bool IsEventMirrored() const {
    return has_targets_.load(std::memory_order_relaxed) && GetHostFunctions().sync_event.load();
  }
  void SyncText(const QString& command) const;

 private:
  // The two kinds of function have the same type.
  void Mirror(InputTextSyncFunc sync, const QString& command) const;
  QVector<QString> Targets() const;
  void SetTargets(QVector<QString> targets);

  mutable std::mutex mutex_;              // guards sync_targets_
  QVector<QString> sync_targets_;         // changed on the main thread
  std::atomic<bool> has_targets_{false};  // lets lines skip the lock if nothing is mirrored
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_SYNC_MANAGER_H_
