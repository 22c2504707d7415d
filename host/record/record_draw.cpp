#include "host/record/record_draw.h"

#include <QFileInfo>
#include <QSaveFile>

#include "host/command_line.h"
#include "host/record/record_file.h"
#include "host/record/record_paths.h"
#include "host/record/record_picture.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

const QString kCommand = QStringLiteral("record draw");
const QString kOutput = QStringLiteral("-o");

// All of it or nothing.
int Write(const QByteArray& picture, const QString& name) {
  QSaveFile file(name);
  const bool is_written = file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() && file.commit();
  if (is_written) return kExitDone;
  PrintError(QStringLiteral("tavi record draw: cannot write %1: %2\n").arg(name, file.errorString()));
  return kExitProblem;
}

}  // namespace

int RunRecordDraw(const QStringList& arguments) {
  const ParsedArguments parsed = ParseArguments(arguments, {{kOutput, true}});
  if (!parsed.error.isEmpty()) return FailUsage(kCommand, parsed.error);
  if (parsed.positional.size() != 1) return FailUsage(kCommand, QStringLiteral("one record is needed"));
  if (parsed.options.value(kOutput).isEmpty()) return FailUsage(kCommand, QStringLiteral("-o FILE is missing"));
  const QString name = parsed.positional[0];
  const RecordFile record = ReadRecordFile(name);
  if (!IsRecordUsable(name, record)) return kExitUsage;
  RecordInfo info;
  taviinputmanager::GetRecordInfo(name, &info);
  return Write(DrawRecord({QFileInfo(name).fileName(), info, FollowContacts(record.root)}), parsed.options[kOutput]);
}

}  // namespace tavi
