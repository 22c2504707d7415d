// The names of types and codes of input events in the kernel's headers.
#ifndef GUEST_TRANSLATION_EVENT_NAMES_H_
#define GUEST_TRANSLATION_EVENT_NAMES_H_

#include <string>

namespace taviguest {

// "EV_KEY", "KEY_A". A code that no device of the guest sends, or that has no name, is given as a number.
std::string EventTypeText(int type);
std::string EventCodeText(int type, int code);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_EVENT_NAMES_H_
