// Files that are written as this library writes them, to the byte.
#ifndef RECORD_JSON_FILE_LAYOUT_H_
#define RECORD_JSON_FILE_LAYOUT_H_

#include <optional>
#include <string>

#include <QByteArray>

#include "record/json/json_scanner.h"

namespace taviinputmanager {

// Bytes of a file, from the first one to behind the last one.
struct ByteRange {
  qint64 begin = 0;
  qint64 end = 0;
};

// Where the parts of a record are, in a file that can be copied instead of being read and written.
struct RecordPlaces {
  QByteArray info;                          // the header; empty where there is none
  std::optional<ByteRange> actions;         // the value
  std::optional<ByteRange> merged_actions;  // the same
  std::optional<ByteRange> create_time;     // the same, in the header; a number
  qint64 end = 0;                           // of the document; blanks may follow
};

// Checks that a file is what a JSON library would write, were it to read it: then any part of it is too, at its level.
// Each file that this library made passes; of the others most do not, and are to be read and written.
//
// That is: four columns a level, each member and element on a line of its own, plain keys in ascending order, none
// twice, and values in the one form that they have; of those that are not plain, the writer tells. 64 levels.
class FileLayout {
 public:
  // What writes the file anew: QJsonDocument::toJson, or the stringifier that UpdateRecordTimestamp uses.
  enum class Writer { kQt, kPoco };

  FileLayout(QIODevice* file, Writer writer, int window_bytes = JsonWindow::kUsualBytes)
      : scanner_(file, window_bytes), writer_(writer) {}

  // False where the file is to be read and written.
  bool Find(RecordPlaces* places);

 private:
  // A level is that of the brackets; the document's is 0.
  bool TakeValue(int level);
  bool TakeObject(int level);
  template <typename Item>
  bool TakeItems(int level, char open, char close, Item item);
  // The value of a member of an object on this level.
  bool TakeMember(int level, const std::string& key);
  bool TakeInfo();
  bool TakeText();
  bool TakeNumber();
  bool IsWrittenSo(const std::string& value) const;

  JsonScanner scanner_;
  const Writer writer_;
  RecordPlaces places_;
  bool is_in_info_ = false;
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_FILE_LAYOUT_H_
