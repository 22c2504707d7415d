#include "host/record/record_draw.h"

#include <QFileInfo>

#include "host/command_line.h"
#include "host/picture/picture_file.h"
#include "host/record/record_file.h"
#include "host/record/record_paths.h"
#include "host/record/record_picture.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

const QString kCommand = QStringLiteral("record draw");
const QString kOutput = QStringLiteral("-o");

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
  const RecordDrawing drawing{QFileInfo(name).fileName(), info, FollowContacts(record.root)};
  return WritePicture(kCommand, parsed.options[kOutput], DrawRecord(drawing));
}

}  // namespace tavi
