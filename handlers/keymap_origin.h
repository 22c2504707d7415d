// Whose functions of the keymap contract a program has.
#ifndef HANDLERS_KEYMAP_ORIGIN_H_
#define HANDLERS_KEYMAP_ORIGIN_H_

namespace taviinputmanager {

// Whether calls of a function reach our keymap library: no host has one of its own in front, and no other library
// stands in its place. What ours answers may then be known beforehand. False also where that cannot be told. The same
// for the whole run; any thread.
bool IsKeyCreationOwn();  // CreateConfigKey
bool IsKeyMatchOwn();     // isConfigKeyMatch

}  // namespace taviinputmanager

#endif  // HANDLERS_KEYMAP_ORIGIN_H_
