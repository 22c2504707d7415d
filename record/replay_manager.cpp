#include "record/replay_manager.h"

namespace taviinputmanager {

ReplayManager* ReplayManager::GetInstance() {
  static ReplayManager instance;
  return &instance;
}

void ReplayManager::StartReplay(int /*unused*/, int /*task_id*/, const QString& /*filename*/, ReplayParam /*param*/) {}

void ReplayManager::PauseReplay(int /*task_id*/, const QString& /*filename*/) {}

void ReplayManager::ResumeReplay(int /*task_id*/, const QString& /*filename*/) {}

void ReplayManager::RestartReplay(int /*task_id*/, const QString& /*filename*/) {}

void ReplayManager::StopReplay(int /*task_id*/, const QString& /*filename*/, bool /*stop_by_user*/) {}

void ReplayManager::StopAllReplay() {}

}  // namespace taviinputmanager
