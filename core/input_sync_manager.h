// The mirror: copies of what goes to the primary display, for other instances.
#ifndef CORE_INPUT_SYNC_MANAGER_H_
#define CORE_INPUT_SYNC_MANAGER_H_

#include <QString>
#include <QVector>

#include "taviinputmanager/types.h"

namespace taviinputmanager {

// Main thread only.
class InputSyncManager {
 public:
  static InputSyncManager* GetInstance() {
    static InputSyncManager instance;
    return &instance;
  }

  // Targets stand once each, in order of adding.
  void StartSync(const QString& target);
  void StopSync(const QString& target);

  // Hands a bare line and all targets to the host, unless there is no function or no target.
  void SyncEvent(const QString& command) const;
  // Whether that would do anything.
  bool IsEventMirrored() const;
  void SyncText(const QString& command) const;

 private:
  // The two kinds of function have one type.
  void Mirror(InputTextSyncFunc sync, const QString& command) const;

  QVector<QString> sync_targets_;
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_SYNC_MANAGER_H_
