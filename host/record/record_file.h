// Record files as the program shows, walks and draws them: read with the rules of a replay, and with a word on
// everything that a replay would drop in silence.
#ifndef HOST_RECORD_RECORD_FILE_H_
#define HOST_RECORD_RECORD_FILE_H_

#include <vector>

#include <QString>
#include <QVector>

#include "taviinputmanager/types.h"

namespace tavi {

struct RecordAction {
  int timing = 0;  // milliseconds since the action before, at normal speed
  QString type;    // an action without one ends the replay
  QString data;
  QString extra1;
  QString extra2;
};

// A list of actions, or of parts that are played one after the other.
struct RecordPart {
  MergeParam control;
  bool is_merged = false;
  std::vector<RecordAction> actions;  // of a list of actions
  std::vector<RecordPart> parts;      // of a merged list
};

struct RecordFinding {
  bool is_error = false;  // the file cannot be played; otherwise a part of it does not do what it says
  int line = 0;           // of JSON that is broken, from 1; else 0
  int column = 0;         // in characters, from 1
  QString path;           // "merged_actions[1].actions[3].timing"; empty for the whole file
  QString message;
};

struct RecordFile {
  bool HasErrors() const;

  RecordPart root;  // of a file with errors, of no use
  QVector<RecordFinding> findings;
};

// Records beyond this are refused: reading takes some ten times their size in memory. Two days of play are shorter.
constexpr qint64 kMostRecordBytes = qint64{512} << 20;

// Why a file is not even looked into: it is a folder, a pipe or a device, or too long. Empty: it can be read, if it is
// there. The library itself takes everything, and waits for a pipe.
QString RecordRefusal(const QString& name);

RecordFile ReadRecordFile(const QString& name);

// The findings, a line each with the file's name in front; beyond a screenful, how many more there are.
QString FormatFindings(const QString& name, const RecordFile& record);

// Tells standard error about the file. False when it cannot be played.
bool IsRecordUsable(const QString& name, const RecordFile& record);

// The action that a replay begins with, however deep; null when the first list is empty.
const RecordAction* FirstAction(const RecordPart& part);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_FILE_H_
