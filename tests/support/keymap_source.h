// The tests' keymaps: replaces the loader functions of the keymap library.
#ifndef TESTS_SUPPORT_KEYMAP_SOURCE_H_
#define TESTS_SUPPORT_KEYMAP_SOURCE_H_

#include <functional>

#include <QString>

#include "keymap/keymap_config.h"

namespace taviinputmanager::test {

// Sets the result of the next load, which takes ownership. A load without one gets an empty config.
void SetNextKeymap(tavikeymapmanager::KeymapConfig* config);
void SetNextJoystickKeymap(tavikeymapmanager::KeymapConfig* config);
// Loads return null from now on, like a library that failed.
void FailLoads(bool fail);
// Is called when a keymap is requested, before it is returned.
void SetLoadListener(std::function<void()> listener);
// The number of loads, and the path of the last one. Not all paths, because a run of hours loads endlessly.
int KeymapLoads();
QString LastKeymapPath();

}  // namespace taviinputmanager::test

#endif  // TESTS_SUPPORT_KEYMAP_SOURCE_H_
