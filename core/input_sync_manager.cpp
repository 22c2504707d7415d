#include "core/input_sync_manager.h"

#include <utility>

namespace taviinputmanager {

void InputSyncManager::StartSync(const QString& target) {
  QVector<QString> targets = Targets();
  if (!targets.contains(target)) targets.append(target);
  SetTargets(std::move(targets));
}

void InputSyncManager::StopSync(const QString& target) {
  QVector<QString> targets = Targets();
  targets.removeAll(target);
  SetTargets(std::move(targets));
}

void InputSyncManager::SyncEvent(const QString& command) const {
  if (IsEventMirrored()) Mirror(GetHostFunctions().sync_event, command);
}

void InputSyncManager::SyncText(const QString& command) const {
  const InputTextSyncFunc sync = GetHostFunctions().sync_text;
  if (sync && has_targets_.load(std::memory_order_relaxed)) Mirror(sync, command);
}

void InputSyncManager::Mirror(InputTextSyncFunc sync, const QString& command) const {
  const QVector<QString> targets = Targets();  // the host may stop one during the iteration
  if (!targets.isEmpty()) sync(command, targets);
}

// Replaces the list, because another thread may be iterating over it.
void InputSyncManager::SetTargets(QVector<QString> targets) {
  const std::lock_guard<std::mutex> lock(mutex_);
  has_targets_.store(!targets.isEmpty(), std::memory_order_relaxed);
  sync_targets_.swap(targets);
}

QVector<QString> InputSyncManager::Targets() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return sync_targets_;
}

}  // namespace taviinputmanager
