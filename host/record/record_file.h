// Record files as the program shows, walks and draws them: read with the rules of a replay, and with a diagnostic for
// everything that a replay would drop silently.
#ifndef HOST_RECORD_RECORD_FILE_H_
#define HOST_RECORD_RECORD_FILE_H_

#include <vector>

#include <QString>
#include <QVector>

#include "taviinputmanager/types.h"

namespace tavi {

struct RecordAction {
  int timing = 0;  // milliseconds since the previous action, at normal speed
  QString type;    // an action without a type ends the replay
  QString data;
  QString extra1;
  QString extra2;
};

// A list of actions, or of parts that are played in turn.
struct RecordPart {
  MergeParam control;
  bool is_merged = false;
  std::vector<RecordAction> actions;  // for a list of actions
  std::vector<RecordPart> parts;      // for a merged list
};

struct RecordFinding {
  bool is_error = false;  // the file cannot be played; otherwise a part of it does not work as written
  int line = 0;           // of invalid JSON, from 1; otherwise 0
  int column = 0;         // in characters, from 1
  QString path;           // "merged_actions[1].actions[3].timing"; empty for the whole file
  QString message;
};

struct RecordFile {
  bool HasErrors() const;

  RecordPart root;  // unusable if the file has errors
  QVector<RecordFinding> findings;
};

// Larger records are refused: reading needs some ten times their size in memory. Two days of play are smaller.
constexpr qint64 kMostRecordBytes = qint64{512} << 20;

// Why a file is not even opened: it is a folder, a pipe or a device, or too long. Empty: it can be read if it exists.
// The library itself accepts any file, and waits for a pipe.
QString RecordRefusal(const QString& name);

RecordFile ReadRecordFile(const QString& name);

// The diagnostics, one per line after the file's name; after a screenful, the number of further ones.
QString FormatFindings(const QString& name, const RecordFile& record);

// Prints the diagnostics of the file to standard error. False if it cannot be played.
bool IsRecordUsable(const QString& name, const RecordFile& record);

// The first action of a replay, at any depth; null if the first list is empty.
const RecordAction* FirstAction(const RecordPart& part);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_FILE_H_
