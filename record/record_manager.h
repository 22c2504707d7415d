// Captures what goes to the guest.
#ifndef RECORD_RECORD_MANAGER_H_
#define RECORD_RECORD_MANAGER_H_

#include <QLatin1String>
#include <atomic>
#include <memory>
#include <mutex>

#include <QString>
#include <QStringList>

#include "record/action_track.h"
#include "taviinputmanager/types.h"

class QEvent;
class QPoint;

namespace taviinputmanager {

struct InputRecorderCallbacks;

// Sits behind the channel to the guest and turns lines back into actions, so that a key that taps is recorded as the
// tap. No call is refused in any state: a pause while stopped is reported, and a resume then records without a start
// marker.
//
// Beside it, and independent of it, a macro can be captured: that one reads the host's events, and makes lines of the
// macro language of them. While it runs no event line is recorded.
//
// Threads: main thread, but for lines: those of the reset at the natural end of a replay come on that replay's.
// GetStatus is for any thread.
class RecordManager {
 public:
  static RecordManager* GetInstance() {
    static RecordManager instance;
    return &instance;
  }
  virtual ~RecordManager() = default;

  void SetCallbacks(InputRecorderCallbacks* callbacks) { callbacks_ = callbacks; }
  RecordStatus GetStatus() const { return status_.load(std::memory_order_relaxed); }

  void StartRecord(const QString& package, const QString& app);
  void PauseRecord();
  void ResumeRecord();
  // Saves, and forgets what was recorded. The host is told the result.
  void StopRecord(const QString& package_name, const QString& filename);
  void AddVControlCommand(const QString& data, const QString& extra1, const QString& extra2);
  // The one way into a record: the action is timed from the one before it. Nothing unless recording, and nothing
  // without `data`.
  void AddAction(const QString& type, const QString& data, const QString& extra1, const QString& extra2);

  void StartRecordMacroInstruction(const QString& name);
  void StopRecordMacroInstruction(const QString& name);

  // Without their line ends.
  void OnEventCommand(const QString& command);
  void OnEventLine(QLatin1String line);
  void OnTextCommand(const QString& command);
  // Every event of the host, before any handler sees it. Only read.
  void OnQtInputEvent(QEvent* event) {
    if (macro_recording_.load(std::memory_order_relaxed)) CaptureEvent(event);
  }

 private:
  using Action = std::unique_ptr<RecordAction>;

  RecordManager();

  // From its return on nothing enters, and the record is the main thread's alone.
  void Leave(RecordStatus status);

  void CaptureEvent(QEvent* event);
  void AddMacroAction(const QString& data);
  // As AddAction.
  void Add(Action action);
  void AddMacroMove(const QPoint& window_position);

  // Guards actions_ while status_ is Recording, and all changes of status_. Not held while a file is written or the
  // host is called.
  std::mutex mutex_;
  std::atomic<RecordStatus> status_{RecordStatus::Stopped};
  std::atomic<bool> macro_recording_{false};
  qint64 pause_time_;  // of the last pause, milliseconds since the epoch
  ActionTrack actions_;
  ActionTrack macro_actions_;
  InputRecorderCallbacks* callbacks_ = nullptr;  // the host's
  int mouse_move_counter_ = 0;                   // all moves of a capture; each tenth is kept
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_MANAGER_H_
