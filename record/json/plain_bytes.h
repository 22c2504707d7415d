// The characters of a JSON text that need no escape.
#ifndef RECORD_JSON_PLAIN_BYTES_H_
#define RECORD_JSON_PLAIN_BYTES_H_

#include <array>

namespace taviinputmanager {

// Printable ASCII except quotation mark and backslash.
constexpr std::array<bool, 256> MakePlainBytes() {
  std::array<bool, 256> table{};
  for (std::size_t byte = ' '; byte < 0x7f; ++byte) table[byte] = byte != '"' && byte != '\\';
  return table;
}

constexpr std::array<bool, 256> kPlainBytes = MakePlainBytes();

inline bool IsPlainByte(char byte) { return kPlainBytes[static_cast<unsigned char>(byte)]; }
inline bool IsPlainLetter(unsigned short letter) { return letter < kPlainBytes.size() && kPlainBytes[letter]; }

}  // namespace taviinputmanager

#endif  // RECORD_JSON_PLAIN_BYTES_H_
