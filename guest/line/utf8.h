// Texts as UTF-8.
#ifndef GUEST_LINE_UTF8_H_
#define GUEST_LINE_UTF8_H_

#include <string>
#include <string_view>

namespace taviguest {

struct Utf8Character {
  char32_t code = 0;
  size_t bytes = 0;  // that it takes
};

// What `text` begins with, which is not empty. A byte that begins no character is a U+FFFD of one byte.
Utf8Character FirstCharacter(std::string_view text);

// The text with a U+FFFD for each such byte, and without a byte order mark in front.
std::string ValidUtf8(std::string_view text);

}  // namespace taviguest

#endif  // GUEST_LINE_UTF8_H_
