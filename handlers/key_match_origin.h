// Whose isConfigKeyMatch a program has.
#ifndef HANDLERS_KEY_MATCH_ORIGIN_H_
#define HANDLERS_KEY_MATCH_ORIGIN_H_

namespace taviinputmanager {

// Whether calls of isConfigKeyMatch reach our keymap library: no host has a function of its own in front, and no other
// library stands in its place. False also where that cannot be told. The same for the whole run; any thread.
bool IsKeyMatchOwn();

}  // namespace taviinputmanager

#endif  // HANDLERS_KEY_MATCH_ORIGIN_H_
