// Records what goes to the guest.
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

// Connected to the sender, it converts lines back to actions, so that a key that taps is recorded as the tap. No call
// is refused in any state: a pause while stopped is reported, and a resume then records without a start marker.
//
// Independently of that, a macro can be captured: the capture reads the host's events and converts them to the macro
// language. While it runs, no event line is recorded.
//
// Threads: main thread, except lines: those of the reset at the natural end of a replay come on that replay's thread.
// GetStatus may be called on any thread.
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
  // Saves the recording and clears it. The result is reported to the host.
  void StopRecord(const QString& package_name, const QString& filename);
  void AddVControlCommand(const QString& data, const QString& extra1, const QString& extra2);
  // The only entry to a record: sets the action's time since the previous one. Does nothing unless recording, and
  // nothing without `data`.
  void AddAction(const QString& type, const QString& data, const QString& extra1, const QString& extra2);

  void StartRecordMacroInstruction(const QString& name);
  void StopRecordMacroInstruction(const QString& name);

  // Without their line ends.
  void OnEventCommand(const QString& command);
  void OnEventLine(QLatin1String line);
  void OnTextCommand(const QString& command);
  // Every event of the host, before any handler gets it. Not changed.
  void OnQtInputEvent(QEvent* event) {
    if (macro_recording_.load(std::memory_order_relaxed)) CaptureEvent(event);
  }

 private:
  using Action = std::unique_ptr<RecordAction>;

  RecordManager();

  // After its return nothing is added, and only the main thread uses the record.
  void Leave(RecordStatus status);

  void CaptureEvent(QEvent* event);
  void AddMacroAction(const QString& data);
  // Like AddAction.
  void Add(Action action);
  void AddMacroMove(const QPoint& window_position);

  // Guards actions_ while status_ is Recording, and all changes of status_. Not locked while a file is written or the
  // host is called.
  std::mutex mutex_;
  std::atomic<RecordStatus> status_{RecordStatus::Stopped};
  std::atomic<bool> macro_recording_{false};
  qint64 pause_time_;  // time of the last pause, milliseconds since the epoch
  ActionTrack actions_;
  ActionTrack macro_actions_;
  InputRecorderCallbacks* callbacks_ = nullptr;  // owned by the host
  int mouse_move_counter_ = 0;                   // counts all moves of a capture; every tenth is stored
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_MANAGER_H_
