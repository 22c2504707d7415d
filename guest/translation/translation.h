#ifndef GUEST_TRANSLATION_TRANSLATION_H_
#define GUEST_TRANSLATION_TRANSLATION_H_

#include <string>

#include "guest/translation/kernel_event.h"

namespace taviguest {

// What the devices do for a line.
struct Translation {
  KernelEvents events;
  std::string problem;  // what of the line could not be played, for people; empty: nothing
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_TRANSLATION_H_
