#ifndef GUEST_TRANSLATION_TRANSLATION_H_
#define GUEST_TRANSLATION_TRANSLATION_H_

#include <string>

#include "guest/translation/kernel_event.h"

namespace taviguest {

// The result of a line for the devices.
struct Translation {
  KernelEvents events;
  std::string problem;  // the part of the line that could not be played, for display; empty: none
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_TRANSLATION_H_
