// An ordinary record file, read piece by piece.
#ifndef RECORD_RECORD_READER_H_
#define RECORD_RECORD_READER_H_

#include <memory>

#include <QJsonObject>

#include "record/json/json_scanner.h"
#include "record/json/shared_texts.h"

namespace taviinputmanager {

class MergeRecordActions;
class RecordActions;
class SingleRecordActions;
struct RecordAction;

// What a record file holds.
struct RecordContents {
  QJsonObject info;                        // empty where there is none
  std::shared_ptr<RecordActions> actions;  // null where there is no list, or where none was asked for
};

// Reads a document as RecordFileUtils does from a tree of it, without the tree. It is passed once, to its end, whatever
// is kept of it: where something is broken or odd, nothing is read.
class RecordReader {
 public:
  // Of each list of actions.
  enum class Keep { kNothing, kFirst, kAll };

  // From where `file` stands.
  RecordReader(QIODevice* file, Keep keep, int window_bytes = JsonWindow::kUsualBytes)
      : scanner_(file, window_bytes), keep_(keep) {}

  // False, and `contents` of no use, where the library has to read the file.
  bool Read(RecordContents* contents);

 private:
  // The document, or an item of a merged record.
  struct Level;

  bool TakeLevel(Level* level);
  bool TakeMember(std::string_view key, Level* level);
  bool TakeActions(std::shared_ptr<SingleRecordActions>* single);
  bool TakeItems(std::shared_ptr<MergeRecordActions>* merged);
  bool TakeAction(RecordAction* action);
  bool TakeInt(int* field);
  bool TakeText(QString* field);

  JsonScanner scanner_;
  const Keep keep_;
  SharedTexts texts_;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_READER_H_
