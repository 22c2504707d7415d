// Plays record files back.
#ifndef RECORD_REPLAY_MANAGER_H_
#define RECORD_REPLAY_MANAGER_H_

#include <QMap>
#include <QObject>
#include <QString>

#include "record/file_hold.h"
#include "record/replay_request_queue.h"
#include "taviinputmanager/types.h"

namespace taviinputmanager {

struct InputReplayerCallbacks;

// Each replay has a worker on a thread of its own, which keeps its time. The manager holds no list of them: a request
// goes to all, and each worker looks whether it is named. Two replays of one task and file react together. What falls
// due is performed here, so that replayed lines leave from the thread that live input leaves from.
//
// Threads: main thread, but for the requests, which may also come from the callbacks of a replay, on its thread: those
// are performed on the main thread as soon as it comes to them, in their order.
class ReplayManager : public QObject {
  Q_OBJECT

 public:
  static ReplayManager* GetInstance();

  // For the replays that are started from now on.
  void SetCallbacks(InputReplayerCallbacks* callbacks) { callbacks_ = callbacks; }

  // ---- Requests ----
  // The arguments are those of the exports. A file that cannot be loaded starts nothing, and nobody is told.
  void StartReplay(int unused, int task_id, const QString& unused_name, const QString& filename, ReplayParam param);
  void PauseReplay(int task_id, const QString& filename);
  void ResumeReplay(int task_id, const QString& filename);
  // From the beginning, at the speed of the start: `param` is not read.
  void RestartReplay(int task_id, const QString& filename, ReplayParam param);
  void StopReplay(int task_id, const QString& filename, bool stop_by_user);
  void StopAllReplay();
  void UpdateReplayDisplayId(int display);

 Q_SIGNALS:
  void ReplayNeedPause(int task_id, QString filename);
  void ReplayNeedResume(int task_id, QString filename);
  void ReplayNeedStop(int task_id, QString filename, bool stop_by_user);
  void ReplayNeedRestart(int task_id, QString filename);
  void ReplayNeedForceStop();

 public Q_SLOTS:
  void OnReplayStopped(int task_id, QString filename, bool stop_by_user);
  void OnReplayEventTriggered(QString type, QString data, QString extra1, QString extra2, int task_id, QString filename,
                              bool emulation_mode = false);
  void OnReplayPaused(int task_id, QString filename);

 private:
  ReplayManager() = default;

  void Play(int unused, int task_id, const QString& filename, const ReplayParam& param);
  void HoldRecord(const QString& filename);

  ReplayRequestQueue requests_;                  // performed on the thread that this object was made on
  InputReplayerCallbacks* callbacks_ = nullptr;  // the host's; null is allowed
  // By path. A second replay of a file takes the entry of the first; that one's handle stays open.
  QMap<QString, FileHandle> open_files_;
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_MANAGER_H_
