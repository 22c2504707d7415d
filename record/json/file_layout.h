// Recognizes files that are formatted exactly as this library writes them.
#ifndef RECORD_JSON_FILE_LAYOUT_H_
#define RECORD_JSON_FILE_LAYOUT_H_

#include <optional>
#include <string>

#include <QByteArray>

#include "record/json/json_scanner.h"

namespace taviinputmanager {

// A range of bytes of a file; `end` is one past the last.
struct ByteRange {
  qint64 begin = 0;
  qint64 end = 0;
};

// The positions of the parts of a record, in a file that can be copied instead of being parsed and written.
struct RecordPlaces {
  QByteArray info;                          // the header; empty if there is none
  std::optional<ByteRange> actions;         // the value
  std::optional<ByteRange> merged_actions;  // the same
  std::optional<ByteRange> create_time;     // the same, in the header; a number
  qint64 end = 0;                           // of the document; blanks may follow
};

// Checks that a file is exactly what a JSON library would write after reading it: then every part of it is, too, at its
// level. Every file made by this library passes; most other files do not, and must be parsed and written.
//
// The format is: four columns per level, each member and element on a line of its own, plain keys in ascending order
// without duplicates, and values in canonical form; for values that are not plain, the writer decides. At most 64
// levels.
class FileLayout {
 public:
  // The writer: QJsonDocument::toJson, or the stringifier that UpdateRecordTimestamp uses.
  enum class Writer { kQt, kPoco };

  FileLayout(QIODevice* file, Writer writer, int window_bytes = JsonWindow::kUsualBytes)
      : scanner_(file, window_bytes), writer_(writer) {}

  // False if the file must be parsed and written.
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
