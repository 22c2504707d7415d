// Which library a program's functions of the keymap contract belong to.
#ifndef HANDLERS_KEYMAP_ORIGIN_H_
#define HANDLERS_KEYMAP_ORIGIN_H_

namespace taviinputmanager {

// Whether calls of a function reach our keymap library: no host function of that name takes precedence, and no other
// library replaces it. If so, its results may be kept. False also if that is unknown. The result does not change during
// the run; any thread.
bool IsKeyCreationOwn();  // CreateConfigKey
bool IsKeyMatchOwn();     // isConfigKeyMatch

}  // namespace taviinputmanager

#endif  // HANDLERS_KEYMAP_ORIGIN_H_
