#include "record/json/json_scanner.h"

#include <algorithm>

#include <QJsonObject>
#include <QJsonValue>
#include <QtAlgorithms>
#include <QtEndian>

#include "record/json/library_json.h"
#include "record/json/plain_bytes.h"

namespace taviinputmanager {
namespace {

constexpr std::size_t kMostPlainDigits = 15;  // exact in a double

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

// Moves the window past the characters that `is_of` accepts. False if the source ends with them.
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

// Most of a file is indentation: it is skipped eight bytes at a time.
const char* PastSpaces(const char* place, const char* end) {
  constexpr quint64 kSpaces = 0x2020202020202020;
  constexpr uint kWord = sizeof kSpaces;
  uint spaces = kWord;
  while (spaces == kWord && end - place >= static_cast<std::ptrdiff_t>(kWord)) {
    spaces = qCountTrailingZeroBits(qFromLittleEndian<quint64>(place) ^ kSpaces) / 8;  // of no difference, all bits
    place += spaces;
  }
  return place;
}

// A byte that is not plain, and its escape. For any escape, the byte after the backslash is enough to find the end.
bool MovePastOdd(JsonWindow* window) {
  const std::size_t size = *window->Begin() == '\\' ? 2 : 1;
  if (!window->HasBytes(size)) return false;
  window->MoveTo(window->Begin() + size);
  return true;
}

}  // namespace

bool JsonScanner::TakeText(JsonToken* text) {
  if (!TakeByte('"')) return false;
  const char* const start = window_.Begin();
  const char* const end = std::find_if_not(start, window_.End(), IsPlainByte);
  if (end == window_.End() || *end != '"') return TakeRestOfText(text);
  *text = {{start, static_cast<std::size_t>(end - start)}, true};
  window_.MoveTo(end + 1);
  return true;
}

bool JsonScanner::TakeRestOfText(JsonToken* text) {
  const JsonWindow::Hold hold(&window_);
  text->is_plain = true;
  while (MovePast(&window_, IsPlainByte)) {
    text->bytes = hold.Passed();
    if (TakeByte('"')) return true;
    text->is_plain = false;
    if (!MovePastOdd(&window_)) return false;
  }
  return false;
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

char JsonScanner::NextMarkPastBlanks() {
  do {
    const char* place = window_.Begin();
    const char* const end = window_.End();
    while (place != end && IsBlank(*place)) place = PastSpaces(place + 1, end);
    window_.MoveTo(place);
    if (place != end) return *place;
  } while (window_.Fill());
  return '\0';
}

bool JsonScanner::TakeKey(JsonToken* key) { return NextMark() == '"' && TakeText(key) && key->is_plain; }

bool JsonScanner::Skip() {
  JsonToken token;
  switch (NextMark()) {
    case '{': return TakeItems('{', '}', [&] { return TakeKey(&token) && TakeMark(':') && Skip(); });
    case '[': return TakeItems('[', ']', [this] { return Skip(); });
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
