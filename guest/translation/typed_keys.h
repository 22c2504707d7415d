// The keys that type a text on a keyboard of the US layout.
#ifndef GUEST_TRANSLATION_TYPED_KEYS_H_
#define GUEST_TRANSLATION_TYPED_KEYS_H_

#include <optional>

namespace taviguest {

struct TypedKey {
  int code;          // of Linux
  int modifier = 0;  // the code of the key that is held meanwhile; 0: none
};

// Printable ASCII; newline and carriage return are Enter, tab, backspace and delete their keys; other control
// characters below 27 are letters with Control held, which is how a host types them. Nothing else can be typed.
std::optional<TypedKey> KeyThatTypes(char32_t character);

// Whether the key puts a character of its own into a text: letters, digits, signs and the blank.
bool IsCharacterKey(int code);

// That character, or the one with Shift; 0: the key has none.
char CharacterOfKey(int code, bool is_shifted);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_TYPED_KEYS_H_
