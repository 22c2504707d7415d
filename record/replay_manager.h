// Plays record files.
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

// Each replay has a worker for its timing, on a thread of its own. The manager keeps no list of them: a request goes to
// all, and each worker checks whether it is meant. Two replays of one task and file react together. Actions that are
// due are performed here, so that replayed lines come from the same thread as those of live input.
//
// Threads: main thread, except the requests, which may also come from the callbacks of a replay, on its thread: they
// are queued to the main thread, in order.
class ReplayManager : public QObject {
  Q_OBJECT

 public:
  static ReplayManager* GetInstance();

  // For replays that are started from now on.
  void SetCallbacks(InputReplayerCallbacks* callbacks) { callbacks_ = callbacks; }

  // ---- Requests ----
  // The arguments are those of the exports. If a file cannot be loaded, nothing starts and nothing is reported.
  void StartReplay(int unused, int task_id, const QString& unused_name, const QString& filename, ReplayParam param);
  void PauseReplay(int task_id, const QString& filename);
  void ResumeReplay(int task_id, const QString& filename);
  // From the beginning, at the speed of the start: `param` is not used.
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

  ReplayRequestQueue requests_;                  // performed on the thread that created this object
  InputReplayerCallbacks* callbacks_ = nullptr;  // owned by the host; may be null
  // By path. A second replay of a file replaces the entry of the first, whose handle stays open.
  QMap<QString, FileHandle> open_files_;
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_MANAGER_H_
