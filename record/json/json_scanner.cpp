#include "record/json/json_scanner.h"

#include <algorithm>
#include <array>

#include <QJsonObject>
#include <QJsonValue>

#include "record/json/library_json.h"

namespace taviinputmanager {
namespace {

constexpr std::size_t kMostPlainDigits = 15;  // of which a double keeps each

using ByteTable = std::array<bool, 256>;

constexpr ByteTable MakePlainBytes() {
  ByteTable table{};
  for (int byte = ' '; byte < 0x7f; ++byte) table[static_cast<std::size_t>(byte)] = byte != '"' && byte != '\\';
  return table;
}

constexpr ByteTable kPlainBytes = MakePlainBytes();

bool IsPlain(char byte) { return kPlainBytes[static_cast<unsigned char>(byte)]; }
bool IsBlank(char byte) { return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t'; }
bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }
bool IsOfNumber(char byte) {
  return IsDigit(byte) || byte == '-' || byte == '+' || byte == '.' || byte == 'e' || byte == 'E';
}

bool IsPlainNumber(std::string_view number) {
  if (number == "0") return true;
  if (number.front() == '-') number.remove_prefix(1);
  return !number.empty() && number.size() <= kMostPlainDigits && number.front() != '0' &&
         std::all_of(number.begin(), number.end(), IsDigit);
}

// Moves the window over what `is_of` takes. False where the source ends with it.
template <typename Of>
bool MovePast(JsonWindow* window, Of is_of) {
  do {
    const char* place = window->Begin();
    const char* const end = window->End();
    while (place != end && is_of(*place)) ++place;
    window->MoveTo(place);
    if (place != end) return true;
  } while (window->Fill());
  return false;
}

// A byte that is not plain, and what it escapes. Of any escape the byte behind the mark is enough to find the end.
bool MovePastOdd(JsonWindow* window) {
  const std::size_t size = *window->Begin() == '\\' ? 2 : 1;
  if (!window->HasBytes(size)) return false;
  window->MoveTo(window->Begin() + size);
  return true;
}

}  // namespace

bool JsonScanner::Take(std::string_view exactly) {
  if (!window_.HasBytes(exactly.size())) return false;
  if (!std::equal(exactly.begin(), exactly.end(), window_.Begin())) return false;
  window_.MoveTo(window_.Begin() + exactly.size());
  return true;
}

bool JsonScanner::TakeText(JsonToken* text) {
  if (!Take("\"")) return false;
  {
    const JsonWindow::Hold hold(&window_);
    text->is_plain = true;
    for (; MovePast(&window_, IsPlain) && Next() != '"'; text->is_plain = false) {
      if (!MovePastOdd(&window_)) return false;
    }
    text->bytes = hold.Passed();
  }
  // Where the text has ended, its mark is in the window already, and the bytes stay as they are.
  return Take("\"");
}

bool JsonScanner::TakeNumber(JsonToken* number) {
  const JsonWindow::Hold hold(&window_);
  MovePast(&window_, IsOfNumber);
  number->bytes = hold.Passed();
  if (number->bytes.empty()) return false;
  number->is_plain = IsPlainNumber(number->bytes);
  return true;
}

bool JsonScanner::TakeLiteral() {
  switch (Next()) {
    case 't': return Take("true");
    case 'f': return Take("false");
    case 'n': return Take("null");
    default: return false;
  }
}

char JsonScanner::NextMark() {
  MovePast(&window_, IsBlank);
  return Next();
}

bool JsonScanner::TakeMark(char mark) {
  if (NextMark() != mark) return false;
  window_.MoveTo(window_.Begin() + 1);
  return true;
}

bool JsonScanner::Skip() {
  JsonToken token;
  switch (NextMark()) {
    case '{': return TakeObject([this](std::string_view /*key*/) { return Skip(); });
    case '[': return TakeList([this] { return Skip(); });
    case '"': return TakeText(&token) && (token.is_plain || library_json::ReadText(token.bytes).isString());
    case 't':
    case 'f':
    case 'n': return TakeLiteral();
    default: return TakeNumber(&token) && (token.is_plain || library_json::Read(token.bytes).isDouble());
  }
}

bool JsonScanner::TakeWhole(QJsonObject* object) {
  if (NextMark() != '{') return false;
  const JsonWindow::Hold hold(&window_);
  if (!Skip()) return false;
  const QJsonValue value = library_json::Read(hold.Passed());
  *object = value.toObject();
  return value.isObject();
}

}  // namespace taviinputmanager
