// A buffer on the stack in which a guest line is built.
#ifndef CORE_LINE_BUFFER_H_
#define CORE_LINE_BUFFER_H_

#include <QLatin1String>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include <QByteArray>
#include <QString>

#include "core/decimal.h"

namespace taviinputmanager {

// Uses the heap if a line has no maximum length. There is room before it for the number of a display and after it for a
// NUL, so that a line is sent without a copy. Converts to a QString implicitly.
class LineBuffer {
 public:
  LineBuffer() = default;
  LineBuffer(const LineBuffer& other) { Bytes(other.begin_, static_cast<std::size_t>(other.size())); }
  LineBuffer& operator=(const LineBuffer&) = delete;

  LineBuffer& Text(const char* text) { return Bytes(text, std::strlen(text)); }
  LineBuffer& Text(QLatin1String text) { return Bytes(text.data(), static_cast<std::size_t>(text.size())); }
  template <typename Value>
  LineBuffer& Number(Value value) {
    end_ = Write(Room(kLongest<Value>), value);
    return *this;
  }
  // Each with a separator in front.
  template <typename... Values>
  LineBuffer& Fields(Values... values) {
    end_ = WriteFields(Room((kLongest<Values> + ... + sizeof...(values))), values...);
    return *this;
  }
  // A whole line: a word, its fields, and the end.
  template <typename... Values>
  LineBuffer& Line(QLatin1String word, Values... values) {
    const auto length = static_cast<std::size_t>(word.size());
    char* at = Room(length + (kLongest<Values> + ... + (sizeof...(values) + 1)));
    std::memcpy(at, word.data(), length);
    at = WriteFields(at + length, values...);
    *at = '\n';
    end_ = at + 1;
    return *this;
  }
  // Text of any script. Other characters than ASCII are converted to UTF-8.
  LineBuffer& Narrow(const QString& text) {
    const auto length = static_cast<std::size_t>(text.size());
    const QChar* units = text.constData();
    char* at = Room(length);
    unsigned seen = 0;
    for (std::size_t i = 0; i < length; ++i) {  // without an early exit, so that the loop can be vectorized
      seen |= units[i].unicode();
      at[i] = static_cast<char>(units[i].unicode());
    }
    if (seen > kLastAscii) {
      const QByteArray bytes = text.toUtf8();
      return Bytes(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }
    end_ += length;
    return *this;
  }
  LineBuffer& Byte(char byte) {
    *Room(1) = byte;
    ++end_;
    return *this;
  }

  // For ASCII text.
  QString ToString() const { return QString::fromLatin1(begin_, size()); }
  operator QString() const { return ToString(); }  // NOLINT(google-explicit-constructor)
  std::string toStdString() const { return std::string(begin_, end_); }
  char* data() { return begin_; }
  // A whole line. Valid until the next change.
  QLatin1String WithoutEnd() const { return QLatin1String(begin_, isEmpty() ? 0 : size() - 1); }
  int size() const { return static_cast<int>(end_ - begin_); }
  bool isEmpty() const { return begin_ == end_; }
  void Clear() { end_ = begin_; }

  // The text after a display number and a colon, and before a NUL, which `length` does not count. Valid until the next
  // change.
  const char* ForDisplay(int display, int* length) const {
    char* start = begin_;
    *--start = ':';
    start = WriteDecimalBefore(start, display);
    *end_ = '\0';
    *length = static_cast<int>(end_ - start);
    return start;
  }

 private:
  static constexpr std::size_t kUsualLength = 192;
  static constexpr std::size_t kLongestDouble = 32;
  template <typename Value>
  static constexpr std::size_t kLongest = std::is_integral_v<Value> ? kLongestDecimal : kLongestDouble;
  static constexpr std::size_t kHeadroom = kLongestDecimal + 1;
  static constexpr int kSignificantDigits = 6;
  static constexpr unsigned kLastAscii = 0x7F;

  template <typename... Values>
  static char* WriteFields(char* at, Values... values) {
    ((*at = ':', at = Write(at + 1, values)), ...);
    return at;
  }
  static char* Write(char* at, int value) { return WriteDecimal(at, value); }
  // Like QString::arg(double): six significant digits, fixed or exponent form, -0 as 0.
  static char* Write(char* at, double value) {
    constexpr char kNoNumber[] = "nan";
    if (std::isnan(value)) return std::copy_n(kNoNumber, sizeof kNoNumber - 1, at);
    return std::to_chars(at, at + kLongestDouble, value == 0 ? 0.0 : value, std::chars_format::general,
                         kSignificantDigits)
        .ptr;
  }

  LineBuffer& Bytes(const char* bytes, std::size_t length) {
    std::memcpy(Room(length), bytes, length);
    end_ += length;
    return *this;
  }

  // Where to write the next `length` bytes.
  char* Room(std::size_t length) {
    if (static_cast<std::size_t>(limit_ - end_) < length) Grow(length);
    return end_;
  }

  void Grow(std::size_t length) {
    const auto used = static_cast<std::size_t>(end_ - begin_);
    const std::size_t capacity = 2 * (used + length);
    std::unique_ptr<char[]> larger(new char[kHeadroom + capacity + 1]);
    std::memcpy(larger.get() + kHeadroom, begin_, used);
    heap_ = std::move(larger);
    begin_ = heap_.get() + kHeadroom;
    end_ = begin_ + used;
    limit_ = begin_ + capacity;
  }

  char usual_[kHeadroom + kUsualLength + 1];
  std::unique_ptr<char[]> heap_;  // null unless a line is longer than usual
  char* begin_ = usual_ + kHeadroom;
  char* end_ = begin_;
  char* limit_ = begin_ + kUsualLength;  // a NUL follows
};

}  // namespace taviinputmanager

#endif  // CORE_LINE_BUFFER_H_
