// Where the tests' keymaps come from: the loader functions of the contract, in front of the keymap library's.
#ifndef TESTS_SUPPORT_KEYMAP_SOURCE_H_
#define TESTS_SUPPORT_KEYMAP_SOURCE_H_

#include <functional>

#include <QString>

#include "keymap/keymap_config.h"

namespace taviinputmanager::test {

// What the next load gets; given away to it. A load without one gets an empty config.
void SetNextKeymap(tavikeymapmanager::KeymapConfig* config);
void SetNextJoystickKeymap(tavikeymapmanager::KeymapConfig* config);
// Loads give null from now on, as a library does that failed.
void FailLoads(bool fail);
// Is called when a keymap is asked for, before it is given.
void SetLoadListener(std::function<void()> listener);
// How often a keymap was asked for, and the path of the last time. Not all paths: a run of hours loads for ever.
int KeymapLoads();
QString LastKeymapPath();

}  // namespace taviinputmanager::test

#endif  // TESTS_SUPPORT_KEYMAP_SOURCE_H_
