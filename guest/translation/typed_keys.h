// The keys that type a text on a US keyboard.
#ifndef GUEST_TRANSLATION_TYPED_KEYS_H_
#define GUEST_TRANSLATION_TYPED_KEYS_H_

#include <optional>

namespace taviguest {

struct TypedKey {
  int code;          // the Linux code
  int modifier = 0;  // the code of the key that is held with it; 0: none
};

// Printable ASCII; newline and carriage return are Enter, tab, backspace and delete their keys; other control
// characters below 27 are letters with Control, as a host types them. No other character can be typed.
std::optional<TypedKey> KeyThatTypes(char32_t character);

// Whether the key types a character: letters, digits, punctuation and the space.
bool IsCharacterKey(int code);

// Its character, without or with Shift; 0: the key has none.
char CharacterOfKey(int code, bool is_shifted);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_TYPED_KEYS_H_
