// Reads record files in the usual format incrementally.
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

// The content of a record file.
struct RecordContents {
  QJsonObject info;                        // empty if there is none
  std::shared_ptr<RecordActions> actions;  // null if there is no list, or if none was requested
};

// Gives the same result as RecordFileUtils from a tree of the document, without building the tree. It reads the
// document once, to its end, whatever is kept of it: if any part is invalid or unusual, nothing is read.
class RecordReader {
 public:
  // Called for each list of actions.
  enum class Keep { kNothing, kFirst, kAll };

  // Reads from the current position of `file`.
  RecordReader(QIODevice* file, Keep keep, int window_bytes = JsonWindow::kUsualBytes)
      : scanner_(file, window_bytes), keep_(keep) {}

  // False, with useless `contents`, if the library must read the file.
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
