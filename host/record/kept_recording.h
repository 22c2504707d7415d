#ifndef HOST_RECORD_KEPT_RECORDING_H_
#define HOST_RECORD_KEPT_RECORDING_H_

#include <QString>

namespace tavi {

// A finished recording in a file of its own until its final file is written. The library discards a recording once it
// has been told to save it, whatever the target and the result, so it is saved here first.
//
// Main thread.
class KeptRecording {
 public:
  // Chooses a folder for the recording, on the disk with the most space.
  KeptRecording();
  // A recording that was neither saved nor discarded stays there, for the user to find.
  ~KeptRecording() = default;
  KeptRecording(const KeptRecording&) = delete;
  KeptRecording& operator=(const KeptRecording&) = delete;

  // Where the library must save it; empty if there is no space at all.
  const QString& File() const { return file_; }
  // Moves it to its final file; it is no longer kept then. Returns the system's error, or an empty string.
  QString SaveTo(const QString& target);
  void Drop();

 private:
  QString folder_;
  QString file_;
};

}  // namespace tavi

#endif  // HOST_RECORD_KEPT_RECORDING_H_
