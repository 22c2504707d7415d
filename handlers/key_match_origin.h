// Which library isConfigKeyMatch belongs to.
#ifndef HANDLERS_KEY_MATCH_ORIGIN_H_
#define HANDLERS_KEY_MATCH_ORIGIN_H_

namespace taviinputmanager {

// Whether calls of isConfigKeyMatch reach our keymap library: no host function of that name takes precedence, and no
// other library replaces it. False also if that is unknown. The result does not change during the run; any thread.
bool IsKeyMatchOwn();

}  // namespace taviinputmanager

#endif  // HANDLERS_KEY_MATCH_ORIGIN_H_
