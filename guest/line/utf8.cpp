#include "guest/line/utf8.h"

namespace taviguest {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacementBytes = "\xEF\xBF\xBD";
constexpr char32_t kReplacement = 0xFFFD;
constexpr Utf8Character kNoCharacter{kReplacement, 1};

// A character's first byte gives the number of following bytes, each of which has six bits.
struct Form {
  unsigned char mask;
  unsigned char lead;
  size_t bytes;
  char32_t least;  // a smaller code has a shorter form, which is required
};

constexpr Form kForms[] = {
    {0x80, 0x00, 1, 0x00},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
};
constexpr int kBitsOfFollower = 6;

bool IsFollower(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// How many bytes at the start are ASCII. Event lines are nothing else.
size_t PlainBytes(std::string_view text) {
  size_t count = 0;
  while (count < text.size() && (static_cast<unsigned char>(text[count]) & 0x80U) == 0) ++count;
  return count;
}

bool IsCharacter(char32_t code) { return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF); }

Utf8Character Decode(std::string_view text, const Form& form) {
  if (text.size() < form.bytes) return kNoCharacter;
  char32_t code = static_cast<unsigned char>(text[0]) & static_cast<unsigned char>(~form.mask);
  for (size_t i = 1; i < form.bytes; ++i) {
    if (!IsFollower(text[i])) return kNoCharacter;
    code = code << kBitsOfFollower | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  return code >= form.least && IsCharacter(code) ? Utf8Character{code, form.bytes} : kNoCharacter;
}

}  // namespace

Utf8Character FirstCharacter(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  for (const Form& form : kForms) {
    if ((lead & form.mask) == form.lead) return Decode(text, form);
  }
  return kNoCharacter;
}

std::string ValidUtf8(std::string_view text) {
  if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
  const size_t plain = PlainBytes(text);
  std::string valid(text.substr(0, plain));
  text.remove_prefix(plain);
  while (!text.empty()) {
    const Utf8Character character = FirstCharacter(text);
    valid += character.code == kReplacement ? kReplacementBytes : text.substr(0, character.bytes);
    text.remove_prefix(character.bytes);
  }
  return valid;
}

}  // namespace taviguest
