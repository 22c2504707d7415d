// A buffer on the stack in which a guest line is put together.
#ifndef CORE_LINE_BUFFER_H_
#define CORE_LINE_BUFFER_H_

#include <charconv>
#include <cmath>
#include <cstring>

#include <QString>
#include <QVarLengthArray>

namespace taviinputmanager {

// Moves to the heap by itself where a form has no upper length.
class LineBuffer {
 public:
  LineBuffer& Text(const char* text) {
    buffer_.append(text, static_cast<int>(std::strlen(text)));
    return *this;
  }
  LineBuffer& Text(QLatin1String text) {
    buffer_.append(text.data(), text.size());
    return *this;
  }
  LineBuffer& Number(int value) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    buffer_.append(digits, static_cast<int>(end - digits));
    return *this;
  }
  // As QString::arg(double) writes it: six significant digits, fixed or exponent form, -0 as 0.
  LineBuffer& Number(double value) {
    if (std::isnan(value)) return Text("nan");
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value == 0 ? 0.0 : value, std::chars_format::general,
                                   kSignificantDigits)
                         .ptr;
    buffer_.append(digits, static_cast<int>(end - digits));
    return *this;
  }
  // A separator and a field.
  template <typename Value>
  LineBuffer& Field(Value value) {
    buffer_.append(':');
    return Number(value);
  }
  // Text of any script. What is not ASCII is narrowed to UTF-8.
  LineBuffer& Narrow(const QString& text) {
    const int start = buffer_.size();
    buffer_.resize(start + text.size());
    for (int i = 0; i < text.size(); ++i) {
      const ushort unit = text.at(i).unicode();
      if (unit > kLastAscii) {
        const QByteArray bytes = text.toUtf8();
        buffer_.resize(start);
        buffer_.append(bytes.constData(), bytes.size());
        return *this;
      }
      buffer_[start + i] = static_cast<char>(unit);
    }
    return *this;
  }
  LineBuffer& Byte(char byte) {
    buffer_.append(byte);
    return *this;
  }

  QString ToString() const { return QString::fromLatin1(buffer_.constData(), buffer_.size()); }
  char* data() { return buffer_.data(); }
  int size() const { return buffer_.size(); }

 private:
  static constexpr int kUsualLength = 128;
  static constexpr int kSignificantDigits = 6;
  static constexpr ushort kLastAscii = 0x7F;

  QVarLengthArray<char, kUsualLength> buffer_;
};

}  // namespace taviinputmanager

#endif  // CORE_LINE_BUFFER_H_
