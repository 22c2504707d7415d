// Item keys that cannot work: bound twice, or on a device that cannot start the item.
#ifndef KEYMAPMANAGER_CHECKS_BINDING_CHECKS_H_
#define KEYMAPMANAGER_CHECKS_BINDING_CHECKS_H_

#include <QHash>
#include <QVector>

#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/fields/sourced_item.h"

namespace tavikeymapmanager {

// A key, or the two keys of a chord, and its field.
struct Binding {
  QString type;  // of the item
  ConfigKey first_key;
  ConfigKey key;
  YamlSpan span;
};

class BindingChecks {
 public:
  BindingChecks(const SourcedItems& items, DiagnosticList* diagnostics) : items_(items), diagnostics_(diagnostics) {}

  void Run();

 private:
  void Collect();
  void CheckMixedDevices();
  void CheckTwice(const Binding& binding);
  void CheckChord(const Binding& binding);
  void CheckDevice(const Binding& binding);
  void CheckMouse(const Binding& binding);

  const SourcedItems& items_;
  DiagnosticList* diagnostics_;  // not owned
  QVector<Binding> bindings_;    // in matching order
  QHash<QString, int> lines_;    // where each key and chord is bound first
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_CHECKS_BINDING_CHECKS_H_
