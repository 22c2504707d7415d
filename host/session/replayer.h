#ifndef HOST_SESSION_REPLAYER_H_
#define HOST_SESSION_REPLAYER_H_

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include "taviinputmanager/types.h"

namespace tavi {

// One replay of one record, in a form that a window can show.
//
// The library's callbacks are plain functions, so there is one replayer in a process.
//
// Threads: main. What the library reports on a replay's thread is queued to it.
class Replayer : public QObject {
  Q_OBJECT

 public:
  enum class State { kNone, kStarting, kPlaying, kPaused, kFinished };

  static Replayer* GetInstance();

  // Opens a record, whose header is `info`, for replay and ends the previous replay.
  void Open(const QString& file, const RecordInfo& info);
  const QString& File() const { return file_; }

  // For an opened record; without effect in other states.
  void Play(taviinputmanager::ReplayParam param);
  void Pause();
  void Resume();
  void Restart();
  // What the replay holds down is released.
  void Stop();

  State GetState() const { return state_; }
  // The total duration at the current speed and the elapsed time, in milliseconds.
  qint64 TotalMs() const;
  qint64 PlayedMs() const;

 Q_SIGNALS:
  void Changed();
  // The library did not accept the file.
  void Refused(const QString& file);

 private:
  friend struct ReplayerFunctions;

  Replayer();

  bool IsMine(int task_id, const QString& file) const { return task_id == task_id_ && file == file_; }
  void TakeStarted();
  void TakeFinished();
  void TakeState(State state);
  void TellIfRefused(int task_id);

  QString file_;
  RecordInfo info_;
  int task_id_ = 0;  // changes at each start, so that no report of an earlier replay is taken for one of this replay
  taviinputmanager::ReplayParam param_;
  State state_ = State::kNone;
  bool has_finished_early_ = false;  // a record without actions finishes before it has started
  QElapsedTimer playing_;            // since the start or the last resume; otherwise not valid
  qint64 before_ms_ = 0;             // up to the last pause
};

}  // namespace tavi

#endif  // HOST_SESSION_REPLAYER_H_
