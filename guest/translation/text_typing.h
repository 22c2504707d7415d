// Types texts on the keyboard.
#ifndef GUEST_TRANSLATION_TEXT_TYPING_H_
#define GUEST_TRANSLATION_TEXT_TYPING_H_

#include <string_view>

#include "guest/line/guest_options.h"
#include "guest/translation/translation.h"

namespace taviguest {

// Each character is a click of its key, with Shift or Control around it if needed. Characters that the keyboard does
// not have are returned as the problem, and the others are typed. `text` is valid UTF-8.
Translation TypeText(std::string_view text, const GuestOptions& options);

// "ENTER", "BACKSPACE".
Translation TypeControl(std::string_view name);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_TEXT_TYPING_H_
