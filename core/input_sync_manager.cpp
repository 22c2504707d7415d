#include "core/input_sync_manager.h"

#include "core/host_functions.h"

namespace taviinputmanager {

void InputSyncManager::StartSync(const QString& target) {
  if (!sync_targets_.contains(target)) sync_targets_.append(target);
}

void InputSyncManager::StopSync(const QString& target) { sync_targets_.removeAll(target); }

bool InputSyncManager::IsEventMirrored() const { return GetHostFunctions().sync_event && !sync_targets_.isEmpty(); }

void InputSyncManager::SyncEvent(const QString& command) const {
  if (IsEventMirrored()) GetHostFunctions().sync_event(command, sync_targets_);
}

void InputSyncManager::SyncText(const QString& command) const {
  const InputTextSyncFunc sync = GetHostFunctions().sync_text;
  if (sync && !sync_targets_.isEmpty()) sync(command, sync_targets_);
}

}  // namespace taviinputmanager
