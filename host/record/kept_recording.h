#ifndef HOST_RECORD_KEPT_RECORDING_H_
#define HOST_RECORD_KEPT_RECORDING_H_

#include <QString>

namespace tavi {

// A recording that has ended, in a file of its own until it has its place. The library forgets a recording once it was
// told to save it, wherever that was to and whatever came of it, so it is saved here first.
//
// Main thread.
class KeptRecording {
 public:
  // Makes room for a recording, where there is most of it.
  KeptRecording();
  // What was neither saved nor dropped stays where it is, for the person to find.
  ~KeptRecording() = default;
  KeptRecording(const KeptRecording&) = delete;
  KeptRecording& operator=(const KeptRecording&) = delete;

  // Where the library is to save it; empty where there is no room at all.
  const QString& File() const { return file_; }
  // Puts it into its place; after that it is kept no more. Returns what went wrong, as the system says it, or nothing.
  QString SaveTo(const QString& target);
  void Drop();

 private:
  QString folder_;
  QString file_;
};

}  // namespace tavi

#endif  // HOST_RECORD_KEPT_RECORDING_H_
