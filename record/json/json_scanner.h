// Parses machine-written JSON incrementally.
#ifndef RECORD_JSON_JSON_SCANNER_H_
#define RECORD_JSON_JSON_SCANNER_H_

#include <string>
#include <string_view>

#include "record/json/json_window.h"

class QJsonObject;

namespace taviinputmanager {

// A text without its quotation marks, or a number.
struct JsonToken {
  std::string_view bytes;  // until more is read
  // A text without escapes, in printable ASCII. Or a whole number of up to 15 digits in canonical form.
  bool is_plain = true;
};

// The content of a file is defined by what QJsonDocument reads. The scanner supports the common part: the strict
// grammar, plain keys, and 64 levels. It passes an unusual value in such a document to the library; in all other cases
// it gives up and returns false: the library must then read the whole document. What the scanner accepts, the library
// accepts too, with the same result.
class JsonScanner {
 public:
  static constexpr int kMostLevels = 64;

  explicit JsonScanner(QIODevice* source, int window_bytes = JsonWindow::kUsualBytes) : window_(source, window_bytes) {}

  JsonWindow* Window() { return &window_; }

  // ---- Byte by byte ----
  // Does not consume it; 0 at the end.
  char Next() { return window_.HasByte() ? *window_.Begin() : '\0'; }
  bool TakeByte(char byte);
  bool Take(std::string_view exactly);
  bool TakeText(JsonToken* text);
  bool TakeNumber(JsonToken* number);
  // true, false or null.
  bool TakeLiteral();

  // ---- Past blanks ----
  char NextMark() { return window_.Begin() != window_.End() && *window_.Begin() > ' ' ? Next() : NextMarkPastBlanks(); }
  bool TakeMark(char mark) { return NextMark() == mark && TakeByte(mark); }
  // Calls `member` with each key, which must be used before its value is read.
  template <typename Member>
  bool TakeObject(Member member);
  // Calls `element` to read each.
  template <typename Element>
  bool TakeList(Element element);
  // Skips a value.
  bool Skip();
  // An object, as the library reads it.
  bool TakeWhole(QJsonObject* object);
  // Whether only blanks are left.
  bool IsAtEnd() { return NextMark() == '\0' && !window_.HasByte(); }

 private:
  char NextMarkPastBlanks();
  bool TakeKey(JsonToken* key);
  // After the opening quotation mark, for a text that is not plain or not completely in the window.
  bool TakeRestOfText(JsonToken* text);
  template <typename Item>
  bool TakeItems(char open, char close, Item item);

  JsonWindow window_;
  int level_ = 0;
  std::string key_;  // the window may move before it is used
};

inline bool JsonScanner::TakeByte(char byte) {
  if (Next() != byte) return false;
  window_.MoveTo(window_.Begin() + 1);
  return true;
}

inline bool JsonScanner::Take(std::string_view exactly) {
  if (!window_.HasBytes(exactly.size())) return false;
  if (std::string_view(window_.Begin(), exactly.size()) != exactly) return false;
  window_.MoveTo(window_.Begin() + exactly.size());
  return true;
}

template <typename Member>
bool JsonScanner::TakeObject(Member member) {
  return TakeItems('{', '}', [&] {
    JsonToken key;
    if (!TakeKey(&key)) return false;
    key_.assign(key.bytes);
    return TakeMark(':') && member(std::string_view(key_));
  });
}

template <typename Element>
bool JsonScanner::TakeList(Element element) {
  return TakeItems('[', ']', element);
}

template <typename Item>
bool JsonScanner::TakeItems(char open, char close, Item item) {
  if (level_ == kMostLevels || !TakeMark(open)) return false;
  if (TakeMark(close)) return true;
  ++level_;
  do {
    if (!item()) return false;
  } while (TakeMark(','));
  --level_;
  return TakeMark(close);
}

}  // namespace taviinputmanager

#endif  // RECORD_JSON_JSON_SCANNER_H_
