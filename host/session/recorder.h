#ifndef HOST_SESSION_RECORDER_H_
#define HOST_SESSION_RECORDER_H_

#include <memory>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include "host/record/kept_recording.h"
#include "taviinputmanager/types.h"

namespace tavi {

// The library's recording, in a form that a window can show.
//
// The library's callbacks are plain functions, so there is one recorder in a process. Main thread.
class Recorder : public QObject {
  Q_OBJECT

 public:
  static Recorder* GetInstance();

  // Discards what was recorded before. `app` is stored in the record.
  void Start(const QString& app);
  void Pause();
  void Resume();
  // Ends the recording, which is kept until it is saved or discarded. Returns the error if nothing is kept; if there is
  // no disk space at all, the recording continues.
  QString End();
  // Saves the kept recording. Returns the error for the user, or an empty string; after an error it is still kept.
  QString Save(const QString& file);
  // Ends it without a file.
  void Discard();

  taviinputmanager::RecordStatus Status() const;
  // The recording runs or is paused, or has ended and is kept.
  bool HasRecording() const;
  // Where it is kept; empty if none is.
  QString KeptFile() const;
  // The recorded time so far in milliseconds, without pauses.
  qint64 RecordedMs() const;

 Q_SIGNALS:
  void Changed();
  void Saved(const QString& file, const RecordInfo& info);

 private:
  friend struct RecorderFunctions;

  Recorder();

  void TakeRunning(bool running);
  void TakeStopped(int result);

  QElapsedTimer running_;  // since the start or the last resume; otherwise not valid
  qint64 before_ms_ = 0;   // up to the last pause
  int result_ = 0;         // of the last recording, as reported by the library
  std::unique_ptr<KeptRecording> kept_;
  RecordInfo info_;  // of the kept recording
};

}  // namespace tavi

#endif  // HOST_SESSION_RECORDER_H_
