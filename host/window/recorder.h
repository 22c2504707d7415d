#ifndef HOST_WINDOW_RECORDER_H_
#define HOST_WINDOW_RECORDER_H_

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include "taviinputmanager/types.h"

namespace tavi {

// The library's recording, as something that a window can show.
//
// The library's callbacks are plain functions, so there is one recorder in a process. Main thread.
class Recorder : public QObject {
  Q_OBJECT

 public:
  static Recorder* GetInstance();

  // Forgets what was recorded before. `app` is found in the record again.
  void Start(const QString& app);
  void Pause();
  void Resume();
  // Ends the recording and saves it; Saved tells what came of it.
  void Stop(const QString& file);
  // Ends it without a file.
  void Discard();

  taviinputmanager::RecordStatus Status() const;
  // Milliseconds that were recorded so far, pauses left out.
  qint64 RecordedMs() const;

 Q_SIGNALS:
  void Changed();
  // `problem` is for people; empty when the file was written.
  void Saved(const QString& file, const QString& problem);

 private:
  friend struct RecorderFunctions;

  Recorder();

  void TakeRunning(bool running);
  void TakeStopped(const QString& file, int result);

  QElapsedTimer running_;  // since the start or the last resume; not valid otherwise
  qint64 before_ms_ = 0;   // up to the last pause
  bool is_discarding_ = false;
};

}  // namespace tavi

#endif  // HOST_WINDOW_RECORDER_H_
