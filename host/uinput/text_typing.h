// Texts, typed on the keyboard.
#ifndef HOST_UINPUT_TEXT_TYPING_H_
#define HOST_UINPUT_TEXT_TYPING_H_

#include "host/uinput/translation.h"

namespace tavi {

// Each character is a click of its key, with Shift or Control around it where it needs one. Characters that the
// keyboard does not have are named as the problem, and the others are typed.
Translation TypeText(const QString& text);

// "ENTER", "BACKSPACE".
Translation TypeControl(const QString& name);

}  // namespace tavi

#endif  // HOST_UINPUT_TEXT_TYPING_H_
