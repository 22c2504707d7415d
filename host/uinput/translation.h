#ifndef HOST_UINPUT_TRANSLATION_H_
#define HOST_UINPUT_TRANSLATION_H_

#include "host/uinput/kernel_event.h"

namespace tavi {

// What the devices do for a line.
struct Translation {
  KernelEvents events;
  QString problem;  // what of the line could not be played, for people; empty: nothing
};

}  // namespace tavi

#endif  // HOST_UINPUT_TRANSLATION_H_
