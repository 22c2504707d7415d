// The timing of one replay.
#ifndef RECORD_REPLAY_WORKER_H_
#define RECORD_REPLAY_WORKER_H_

#include <QObject>
#include <QString>

#include "record/replay_context.h"
#include "taviinputmanager/types.h"

class QTimer;

namespace taviinputmanager {

struct InputReplayerCallbacks;

// The parameters of a replay.
struct ReplayWorkerParam {
  int task_id = 0;
  int unused = 0;  // the first argument of StartReplay; stored, but not used
  QString filename;
  ReplayParam param;
  InputReplayerCallbacks* callbacks = nullptr;  // owned by the host; may be null
};

// Walks a record and signals when each action is due. It performs none, so that a slow one does not shift its timer.
//
//            timing of a     timing of b
//   started ------------- a ------------- b (last) finished ...... stays, until it is restarted or stopped
//                             Pause ... Resume
//                             | the rest of the delay is kept
//
// Each delay starts when the previous timeout was handled; lost time is not made up for. There is no stored state: a
// worker without a current action has finished, one whose timer is stopped is paused.
//
// Requests go to all workers; a worker ignores those with another task or file. Before Start, all but Restart have no
// effect; neither has Pause when the record is over.
//
// Threads: created on the main thread; its slots run on the replay's own, and so do the host's callbacks, and the input
// reset at the natural end.
class ReplayWorker : public QObject {
  Q_OBJECT

 public:
  // Takes over the actions of `context`.
  ReplayWorker(ReplayContext context, const ReplayWorkerParam& param);

 Q_SIGNALS:
  void ReplayStopped(int task_id, QString filename, bool stop_by_user);
  void ReplayEventTriggered(QString type, QString data, QString extra1, QString extra2, int task_id, QString filename,
                            bool emulation_mode = false);
  void ReplayPaused(int task_id, QString filename);

 public Q_SLOTS:
  void Start();
  void Pause(int task_id, QString filename);
  void Resume(int task_id, QString filename);
  void Stop(int task_id, QString filename, bool stop_by_user);
  // From the beginning, at the speed of the start.
  void Restart(int task_id, QString filename);
  // Stops regardless of its names.
  void ForceStop();
  void TimerOutTime();

 private:
  using Callback = void (*)(int task_id, const QString& filename);

  bool IsNamed(int task_id, const QString& filename) const;
  void PlayFromFirst();
  void ScheduleNext();
  void Finish();
  void End(bool stop_by_user);
  void Tell(Callback InputReplayerCallbacks::*member) const;

  qint64 last_start_time_ = 0;  // start time of the timer, milliseconds since the epoch
  QTimer* timer_ = nullptr;     // a child; null until first needed
  ReplayContext context_;
  ReplayWorkerParam param_;
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_WORKER_H_
