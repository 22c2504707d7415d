#include "host/record/kept_recording.h"

#include <QDir>
#include <QTemporaryDir>

#include "host/system/roomy_folder.h"
#include "host/system/whole_file.h"

namespace tavi {

KeptRecording::KeptRecording() {
  const QString place = RoomyFolder();
  if (place.isEmpty()) return;
  QTemporaryDir folder(place + QStringLiteral("/recording-XXXXXX"));
  if (!folder.isValid()) return;
  folder.setAutoRemove(false);
  folder_ = folder.path();
  file_ = folder.filePath(QStringLiteral("recording.json"));
}

QString KeptRecording::SaveTo(const QString& target) {
  const QString problem = CopyWholeFile(file_, target);
  if (problem.isEmpty()) Drop();
  return problem;
}

void KeptRecording::Drop() {
  if (!folder_.isEmpty()) QDir(folder_).removeRecursively();
  folder_.clear();
  file_.clear();
}

}  // namespace tavi
