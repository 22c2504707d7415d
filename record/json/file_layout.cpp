#include "record/json/file_layout.h"

#include <array>
#include <string>
#include <utility>

#include "record/json/library_json.h"
#include "record/json/poco_json.h"
#include "record/record_format.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

namespace {

constexpr std::size_t kColumns = 4;  // of a level

// A line end, and the indentation of the maximum number of levels.
constexpr auto kLongestLineStart = [] {
  std::array<char, 1 + kColumns * JsonScanner::kMostLevels> line{'\n'};
  for (std::size_t column = 1; column < line.size(); ++column) line[column] = ' ';
  return line;
}();

constexpr std::string_view LineStart(int level) {
  return {kLongestLineStart.data(), 1 + kColumns * static_cast<std::size_t>(level)};
}

}  // namespace

bool FileLayout::Find(RecordPlaces* places) {
  if (scanner_.Next() != '{' || !TakeObject(0)) return false;
  places_.end = scanner_.Window()->Offset();
  *places = places_;
  return scanner_.IsAtEnd();
}

bool FileLayout::TakeValue(int level) {
  switch (scanner_.Next()) {
    case '{': return TakeObject(level);
    case '[': return TakeItems(level, '[', ']', [this, level] { return TakeValue(level + 1); });
    case '"': return TakeText();
    case 't':
    case 'f':
    case 'n': return scanner_.TakeLiteral();
    default: return TakeNumber();
  }
}

bool FileLayout::TakeObject(int level) {
  std::string key;
  bool is_first = true;
  return TakeItems(level, '{', '}', [&] {
    JsonToken token;
    if (!scanner_.TakeText(&token) || !token.is_plain) return false;
    if (!std::exchange(is_first, false) && token.bytes <= key) return false;
    key.assign(token.bytes);
    return scanner_.TakeByte(':') && scanner_.TakeByte(' ') && TakeMember(level, key);
  });
}

template <typename Item>
bool FileLayout::TakeItems(int level, char open, char close, Item item) {
  if (level == JsonScanner::kMostLevels || !scanner_.TakeByte(open) || !scanner_.Take(LineStart(level))) return false;
  // Empty ones are written in another way.
  if (scanner_.Next() == close) return writer_ == Writer::kQt && scanner_.TakeByte(close);
  if (!scanner_.Take(LineStart(1).substr(1))) return false;
  while (item()) {
    if (!scanner_.TakeByte(',')) return scanner_.Take(LineStart(level)) && scanner_.TakeByte(close);
    if (!scanner_.Take(LineStart(level + 1))) return false;
  }
  return false;
}

bool FileLayout::TakeMember(int level, const std::string& key) {
  if (level == 0 && key == kInfo.data()) return TakeInfo();
  const bool is_number = scanner_.Next() == '-' || (scanner_.Next() >= '0' && scanner_.Next() <= '9');
  ByteRange value;
  value.begin = scanner_.Window()->Offset();
  if (!TakeValue(level + 1)) return false;
  value.end = scanner_.Window()->Offset();

  if (level == 0 && key == kActions.data()) places_.actions = value;
  if (level == 0 && key == kMergedActions.data()) places_.merged_actions = value;
  if (level == 1 && is_in_info_ && is_number && key == kCreateTime.data()) places_.create_time = value;
  return true;
}

bool FileLayout::TakeInfo() {
  if (scanner_.Next() != '{') return false;
  const JsonWindow::Hold hold(scanner_.Window());
  is_in_info_ = true;
  if (!TakeObject(1)) return false;
  is_in_info_ = false;
  places_.info = QByteArray(hold.Passed().data(), static_cast<int>(hold.Passed().size()));
  return true;
}

bool FileLayout::TakeText() {
  JsonToken text;
  return scanner_.TakeText(&text) && (text.is_plain || IsWrittenSo('"' + std::string(text.bytes) + '"'));
}

bool FileLayout::TakeNumber() {
  JsonToken number;
  return scanner_.TakeNumber(&number) && (number.is_plain || IsWrittenSo(std::string(number.bytes)));
}

bool FileLayout::IsWrittenSo(const std::string& value) const {
  return writer_ == Writer::kQt ? library_json::IsWrittenSo(value) : poco_json::IsWrittenSo(value);
}

}  // namespace taviinputmanager
