#include "core/input_sync_manager.h"

#include "core/host_functions.h"

namespace taviinputmanager {

InputSyncManager* InputSyncManager::GetInstance() {
  static InputSyncManager instance;
  return &instance;
}

void InputSyncManager::StartSync(const QString& target) {
  if (!sync_targets_.contains(target)) sync_targets_.append(target);
}

void InputSyncManager::StopSync(const QString& target) { sync_targets_.removeAll(target); }

void InputSyncManager::SyncEvent(const QString& command) const {
  const InputEventSyncFunc sync = GetHostFunctions().sync_event;
  if (sync && !sync_targets_.isEmpty()) sync(command, sync_targets_);
}

void InputSyncManager::SyncText(const QString& command) const {
  const InputTextSyncFunc sync = GetHostFunctions().sync_text;
  if (sync && !sync_targets_.isEmpty()) sync(command, sync_targets_);
}

}  // namespace taviinputmanager
