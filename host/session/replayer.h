#ifndef HOST_SESSION_REPLAYER_H_
#define HOST_SESSION_REPLAYER_H_

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include "taviinputmanager/types.h"

namespace tavi {

// One replay of one record, as something that a window can show.
//
// The library's callbacks are plain functions, so there is one replayer in a process.
//
// Threads: main. What the library says on a replay's thread is taken over to it.
class Replayer : public QObject {
  Q_OBJECT

 public:
  enum class State { kNone, kStarting, kPlaying, kPaused, kFinished };

  static Replayer* GetInstance();

  // Takes a record to play, whose header is `info`, and ends the replay before.
  void Open(const QString& file, const RecordInfo& info);
  const QString& File() const { return file_; }

  // Each for a record that was opened; without effect where it makes no sense.
  void Play(taviinputmanager::ReplayParam param);
  void Pause();
  void Resume();
  void Restart();
  // What the replay holds down is let go.
  void Stop();

  State GetState() const { return state_; }
  // Milliseconds of the whole, at the speed that it is played with, and how many of them have passed.
  qint64 TotalMs() const;
  qint64 PlayedMs() const;

 Q_SIGNALS:
  void Changed();
  // The library did not take the file.
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
  int task_id_ = 0;  // a new one for each start, so that nothing of the replay before is taken for this one's
  taviinputmanager::ReplayParam param_;
  State state_ = State::kNone;
  bool has_finished_early_ = false;  // a record without actions finishes before it has started
  QElapsedTimer playing_;            // since the start or the last resume; not valid otherwise
  qint64 before_ms_ = 0;             // up to the last pause
};

}  // namespace tavi

#endif  // HOST_SESSION_REPLAYER_H_
