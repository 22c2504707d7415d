// Keymaps to play with.
#ifndef FUZZ_FUZZ_KEYMAPS_H_
#define FUZZ_FUZZ_KEYMAPS_H_

#include "keymap/keymap_config.h"

namespace taviinputmanager::fuzz {

// One of the tree's own keymaps, by any number. The caller owns it.
tavikeymapmanager::KeymapConfig* MakeKeymap(int number);

// A few items of any types with any values in their fields, the same ones for a seed always: what a keymap library may
// hand over, but no reader of files lets through. Times, steps and counts are small, since they are walked. The caller
// owns it.
tavikeymapmanager::KeymapConfig* MakeOddKeymap(unsigned seed);

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_FUZZ_KEYMAPS_H_
