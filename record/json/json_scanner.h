// JSON as programs write it, read piece by piece.
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
  // A text that means itself: printable ASCII without an escape. Or a whole number of up to 15 digits in its one form.
  bool is_plain = true;
};

// What a file says is what QJsonDocument reads in it. The scanner knows the ordinary part of that: the strict grammar,
// plain keys, and 64 levels. An odd value in such a document it hands to the library alone; at all else it gives up,
// which a false says: the whole document is the library's then. What it takes, the library takes too, and as the same.
class JsonScanner {
 public:
  static constexpr int kMostLevels = 64;

  explicit JsonScanner(QIODevice* source, int window_bytes = JsonWindow::kUsualBytes) : window_(source, window_bytes) {}

  JsonWindow* Window() { return &window_; }

  // ---- Byte by byte ----
  // Not taken; 0 at the end.
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
  // Calls `member` with each key, which it has to look at before it takes the value.
  template <typename Member>
  bool TakeObject(Member member);
  // Calls `element` to take each.
  template <typename Element>
  bool TakeList(Element element);
  // A value that nobody asks for.
  bool Skip();
  // An object as the library reads it.
  bool TakeWhole(QJsonObject* object);
  // Whether nothing but blanks is left.
  bool IsAtEnd() { return NextMark() == '\0' && !window_.HasByte(); }

 private:
  char NextMarkPastBlanks();
  bool TakeKey(JsonToken* key);
  // Behind the first mark, of a text that is not plain or not in the window to its end.
  bool TakeRestOfText(JsonToken* text);
  template <typename Item>
  bool TakeItems(char open, char close, Item item);

  JsonWindow window_;
  int level_ = 0;
  std::string key_;  // the window may move on before it is looked at
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
