// The mirror: copies of what goes to the primary display, for other instances.
#ifndef CORE_INPUT_SYNC_MANAGER_H_
#define CORE_INPUT_SYNC_MANAGER_H_

#include <atomic>
#include <mutex>

#include <QString>
#include <QVector>

#include "core/host_functions.h"
#include "taviinputmanager/types.h"

namespace taviinputmanager {

// Main thread, but for the lines of a replay that ends, which are mirrored on its own.
class InputSyncManager {
 public:
  static InputSyncManager* GetInstance() {
    static InputSyncManager instance;
    return &instance;
  }

  // Targets stand once each, in order of adding.
  void StartSync(const QString& target);
  void StopSync(const QString& target);

  // Hands a bare line and all targets to the host, unless there is no function or no target.
  void SyncEvent(const QString& command) const;
  // Whether that would do anything.
  bool IsEventMirrored() const {
    return has_targets_.load(std::memory_order_relaxed) && GetHostFunctions().sync_event.load();
  }
  void SyncText(const QString& command) const;

 private:
  // The two kinds of function have one type.
  void Mirror(InputTextSyncFunc sync, const QString& command) const;
  QVector<QString> Targets() const;
  void SetTargets(QVector<QString> targets);

  mutable std::mutex mutex_;              // guards sync_targets_
  QVector<QString> sync_targets_;         // changed on the main thread
  std::atomic<bool> has_targets_{false};  // spares lines the lock where nobody mirrors
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_SYNC_MANAGER_H_
