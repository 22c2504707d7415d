// Keymaps for fuzz targets.
#ifndef FUZZ_FUZZ_KEYMAPS_H_
#define FUZZ_FUZZ_KEYMAPS_H_

#include "keymap/keymap_config.h"

namespace taviinputmanager::fuzz {

// One of the tree's own keymaps, by any number. The caller owns it.
tavikeymapmanager::KeymapConfig* MakeKeymap(int number);

// A few items of any types with any values in their fields, always the same for a seed: what a keymap library may
// return, although no reader of files accepts it. Times, steps and counts are small, because they are executed. The
// caller owns it.
tavikeymapmanager::KeymapConfig* MakeOddKeymap(unsigned seed);

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_FUZZ_KEYMAPS_H_
