#include "core/input_sync_manager.h"

#include "core/host_functions.h"

namespace taviinputmanager {

void InputSyncManager::StartSync(const QString& target) {
  if (!sync_targets_.contains(target)) sync_targets_.append(target);
}

void InputSyncManager::StopSync(const QString& target) { sync_targets_.removeAll(target); }

bool InputSyncManager::IsEventMirrored() const { return GetHostFunctions().sync_event && !sync_targets_.isEmpty(); }

void InputSyncManager::SyncEvent(const QString& command) const {
  if (IsEventMirrored()) Mirror(GetHostFunctions().sync_event, command);
}

void InputSyncManager::SyncText(const QString& command) const {
  const InputTextSyncFunc sync = GetHostFunctions().sync_text;
  if (sync && !sync_targets_.isEmpty()) Mirror(sync, command);
}

void InputSyncManager::Mirror(InputTextSyncFunc sync, const QString& command) const {
  const QVector<QString> targets = sync_targets_;  // the host may stop one while it goes through them
  sync(command, targets);
}

}  // namespace taviinputmanager
