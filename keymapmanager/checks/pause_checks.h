// Items that hold up the program.
#ifndef KEYMAPMANAGER_CHECKS_PAUSE_CHECKS_H_
#define KEYMAPMANAGER_CHECKS_PAUSE_CHECKS_H_

#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/fields/sourced_item.h"

namespace tavikeymapmanager {

// Casts and walks sleep between their steps, and all input waits. Warns of an item that would do so for longer than
// anybody can have meant: two seconds.
class PauseChecks {
 public:
  explicit PauseChecks(DiagnosticList* diagnostics) : diagnostics_(diagnostics) {}

  // An item that was read without errors.
  void Check(const SourcedItem& sourced);

 private:
  DiagnosticList* diagnostics_;  // not owned
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_CHECKS_PAUSE_CHECKS_H_
