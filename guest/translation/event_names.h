// What the kernel's headers call types and codes of input events.
#ifndef GUEST_TRANSLATION_EVENT_NAMES_H_
#define GUEST_TRANSLATION_EVENT_NAMES_H_

#include <string>

namespace taviguest {

// "EV_KEY", "KEY_A". What no device of the guest sends, and what has no name there, stands as its number.
std::string EventTypeText(int type);
std::string EventCodeText(int type, int code);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_EVENT_NAMES_H_
