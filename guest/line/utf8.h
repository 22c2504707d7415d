// Texts as UTF-8.
#ifndef GUEST_LINE_UTF8_H_
#define GUEST_LINE_UTF8_H_

#include <string>
#include <string_view>

namespace taviguest {

struct Utf8Character {
  char32_t code = 0;
  size_t bytes = 0;  // length in bytes
};

// The first character of `text`, which must not be empty. An invalid byte is U+FFFD, with a length of one byte.
Utf8Character FirstCharacter(std::string_view text);

// The text with U+FFFD for each such byte, and without a byte order mark at the start.
std::string ValidUtf8(std::string_view text);

}  // namespace taviguest

#endif  // GUEST_LINE_UTF8_H_
