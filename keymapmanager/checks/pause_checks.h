// Warns of items that block the program.
#ifndef KEYMAPMANAGER_CHECKS_PAUSE_CHECKS_H_
#define KEYMAPMANAGER_CHECKS_PAUSE_CHECKS_H_

#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/fields/sourced_item.h"

namespace tavikeymapmanager {

// Casts and walks sleep between their steps, and all other input waits. Warns of an item that would block for longer
// than anyone can intend: two seconds.
class PauseChecks {
 public:
  explicit PauseChecks(DiagnosticList* diagnostics) : diagnostics_(diagnostics) {}

  // A valid item.
  void Check(const SourcedItem& sourced);

 private:
  DiagnosticList* diagnostics_;  // not owned
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_CHECKS_PAUSE_CHECKS_H_
