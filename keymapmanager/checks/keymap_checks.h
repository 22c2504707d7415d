// Warnings about keymaps that are valid but cannot be intended.
#ifndef KEYMAPMANAGER_CHECKS_KEYMAP_CHECKS_H_
#define KEYMAPMANAGER_CHECKS_KEYMAP_CHECKS_H_

#include "keymap/wheel_settings.h"
#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/fields/sourced_item.h"

namespace tavikeymapmanager {

struct SpellConfigItem;

// Checks the items of one keymap, after all of them have been read.
class KeymapChecks {
 public:
  KeymapChecks(const SourcedItems& items, const WheelSettings& wheel, DiagnosticList* diagnostics)
      : items_(items), wheel_(wheel), diagnostics_(diagnostics) {}

  void Run();

 private:
  void CheckItem(const SourcedItem& sourced);
  void CheckFire(const SourcedItem& sourced);
  void CheckSpell(const SourcedItem& sourced, const SpellConfigItem& spell);
  void CheckSpellAim(const SourcedItem& sourced, const SpellConfigItem& spell);
  void CheckSpellCancel(const SourcedItem& sourced);
  void CheckRun(const SourcedItem& sourced, int duration_ms, int tick_ms);
  void CheckVirtualJoystick();

  bool HasItem(const QString& type) const;

  const SourcedItems& items_;
  const WheelSettings& wheel_;
  DiagnosticList* diagnostics_;  // not owned
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_CHECKS_KEYMAP_CHECKS_H_
