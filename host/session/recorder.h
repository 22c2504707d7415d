#ifndef HOST_SESSION_RECORDER_H_
#define HOST_SESSION_RECORDER_H_

#include <memory>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include "host/record/kept_recording.h"
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
  // Ends the recording, which is kept until it is saved or discarded. Returns what is wrong where nothing is kept;
  // where there is no room at all, it goes on.
  QString End();
  // Saves what was kept. Returns what went wrong, for people, or nothing; then it is kept still.
  QString Save(const QString& file);
  // Ends it without a file.
  void Discard();

  taviinputmanager::RecordStatus Status() const;
  // The recording runs or is paused, or has ended and is kept.
  bool HasRecording() const;
  // Where it is kept; empty when none is.
  QString KeptFile() const;
  // Milliseconds that were recorded so far, pauses left out.
  qint64 RecordedMs() const;

 Q_SIGNALS:
  void Changed();
  void Saved(const QString& file, const RecordInfo& info);

 private:
  friend struct RecorderFunctions;

  Recorder();

  void TakeRunning(bool running);
  void TakeStopped(int result);

  QElapsedTimer running_;  // since the start or the last resume; not valid otherwise
  qint64 before_ms_ = 0;   // up to the last pause
  int result_ = 0;         // of the last recording, as the library tells it
  std::unique_ptr<KeptRecording> kept_;
  RecordInfo info_;  // of what is kept
};

}  // namespace tavi

#endif  // HOST_SESSION_RECORDER_H_
