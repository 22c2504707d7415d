// The keys that type a text on a keyboard of the US layout.
#ifndef HOST_UINPUT_TYPED_KEYS_H_
#define HOST_UINPUT_TYPED_KEYS_H_

#include <optional>

#include <QtGlobal>

namespace tavi {

struct TypedKey {
  int code;          // of Linux
  int modifier = 0;  // the code of the key that is held meanwhile; 0: none
};

// Printable ASCII; newline and carriage return are Enter, tab, backspace and delete their keys; other control
// characters below 27 are letters with Control held, which is how a host types them. Nothing else can be typed.
std::optional<TypedKey> KeyThatTypes(uint character);

}  // namespace tavi

#endif  // HOST_UINPUT_TYPED_KEYS_H_
