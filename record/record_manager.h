// Captures what goes to the guest.
#ifndef RECORD_RECORD_MANAGER_H_
#define RECORD_RECORD_MANAGER_H_

#include <QString>
#include <QStringList>

#include "taviinputmanager/types.h"

class QEvent;

namespace taviinputmanager {

struct InputRecorderCallbacks;

class RecordManager {
 public:
  static RecordManager* GetInstance();

  void SetCallbacks(InputRecorderCallbacks* callbacks) { callbacks_ = callbacks; }
  RecordStatus GetStatus() const { return status_; }

  void StartRecord(const QString& package, const QString& app);
  void PauseRecord();
  void ResumeRecord();
  void StopRecord(const QString& package_name, const QString& filename);
  void AddVControlCommand(const QString& data, const QString& extra1, const QString& extra2);
  void StartRecordMacroInstruction(const QString& name);
  void StopRecordMacroInstruction(const QString& name);
  QStringList GetRecordMacroInstruction(const QString& name) const;

  // Without their line ends.
  void OnEventCommand(const QString& command);
  void OnTextCommand(const QString& command);
  // Every event of the host, before any handler sees it.
  void OnQtInputEvent(QEvent* event);

 private:
  RecordManager() = default;

  RecordStatus status_ = RecordStatus::Stopped;
  InputRecorderCallbacks* callbacks_ = nullptr;  // the host's
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_MANAGER_H_
