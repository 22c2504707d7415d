#ifndef HOST_PLAY_PLAY_RECORDS_H_
#define HOST_PLAY_PLAY_RECORDS_H_

#include <QString>

namespace tavi {

// Recording and replay without a window: each record has a file from the start. Functions return the error, for
// display, or an empty string. Main thread.
class PlayRecords {
 public:
  // Records what the guest gets until Stop, to a file that is checked at once. `app` is stored in the record.
  QString Record(const QString& file, const QString& app);
  // Replays a record; ends the previous replay.
  QString Replay(const QString& file);
  // Ends the replay, and ends and saves the recording, if there are any.
  QString Stop();
  // Saves a running recording. Returns the error, or an empty string.
  QString SaveAtEnd();

 private:
  QString Save();

  QString target_;
};

}  // namespace tavi

#endif  // HOST_PLAY_PLAY_RECORDS_H_
