// Checks for what the macro language would skip silently.
#ifndef KEYMAPMANAGER_CHECKS_MACRO_CHECKS_H_
#define KEYMAPMANAGER_CHECKS_MACRO_CHECKS_H_

#include <QString>

#include "keymap/macro_words.h"
#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

class MacroChecks {
 public:
  explicit MacroChecks(DiagnosticList* diagnostics) : diagnostics_(diagnostics) {}

  // The commands in a list field of a valid item.
  void Check(const YamlNode& item, const QString& field);

 private:
  // An open loop.
  struct Loop {
    const YamlNode* start = nullptr;
    int commands = 0;
    bool has_pause = false;
    bool is_endless = false;  // until the key is released
  };

  void CheckCommand(const YamlNode& node);
  void ReportUnknown(const YamlNode& node, const QString& word);
  void CheckArgument(const YamlNode& node, const MacroWord& row, const QString& argument);
  void CheckPoints(const YamlNode& node, const QString& points, bool allows_many);
  void CheckLoop(const YamlNode& node, const QString& word, const MacroWord& row);
  void CloseLoop(const YamlNode& node);

  DiagnosticList* diagnostics_;  // not owned
  Loop loop_;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_CHECKS_MACRO_CHECKS_H_
