// Plays record files back.
#ifndef RECORD_REPLAY_MANAGER_H_
#define RECORD_REPLAY_MANAGER_H_

#include <QString>

#include "taviinputmanager/types.h"

namespace taviinputmanager {

struct InputReplayerCallbacks;

class ReplayManager {
 public:
  static ReplayManager* GetInstance();

  void SetCallbacks(InputReplayerCallbacks* callbacks) { callbacks_ = callbacks; }

  void StartReplay(int unused, int task_id, const QString& filename, ReplayParam param);
  void PauseReplay(int task_id, const QString& filename);
  void ResumeReplay(int task_id, const QString& filename);
  void RestartReplay(int task_id, const QString& filename);
  void StopReplay(int task_id, const QString& filename, bool stop_by_user);
  void StopAllReplay();

 private:
  ReplayManager() = default;

  InputReplayerCallbacks* callbacks_ = nullptr;  // the host's
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_MANAGER_H_
