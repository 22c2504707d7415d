#ifndef HOST_PLAY_PLAY_RECORDS_H_
#define HOST_PLAY_PLAY_RECORDS_H_

#include <QString>

namespace tavi {

// Records while somebody plays without a window: each has its file from the start. What goes wrong is returned, for
// people; empty when nothing does. Main thread.
class PlayRecords {
 public:
  // Records what the guest gets until Stop, into a file that is tried at once. `app` is found in the record again.
  QString Record(const QString& file, const QString& app);
  // Plays a record in place of the one before.
  QString Replay(const QString& file);
  // Ends the replay and saves the recording, as far as there are any.
  QString Stop();
  // Saves a recording that runs still. What went wrong, or nothing.
  QString SaveAtEnd();

 private:
  QString Save();

  QString target_;
};

}  // namespace tavi

#endif  // HOST_PLAY_PLAY_RECORDS_H_
