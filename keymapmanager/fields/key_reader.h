// Reads the values of key fields.
#ifndef KEYMAPMANAGER_FIELDS_KEY_READER_H_
#define KEYMAPMANAGER_FIELDS_KEY_READER_H_

#include "keymap/config_key.h"
#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

// A key is written as its name, as a digit, as {scan: 200} or as {pad: "the host's name"}. An invalid value is reported
// and leaves the key unchanged.
class KeyReader {
 public:
  explicit KeyReader(DiagnosticList* diagnostics) : diagnostics_(diagnostics) {}

  // One key that is not a stick.
  void ReadKey(const YamlNode& node, ConfigKey* key);
  // The same, or a chord, which sets both keys.
  void ReadChord(const YamlNode& node, ConfigKey* first_key, ConfigKey* key);
  // The only stick with that name.
  void ReadStick(const YamlNode& node, const QString& name, ConfigKey* key);

 private:
  bool ReadAny(const YamlNode& node, ConfigKey* key);
  bool ReadName(const YamlNode& node, const QString& name, ConfigKey* key);
  bool ReadCode(const YamlNode& node, ConfigKey* key);
  bool ReadScan(const YamlNode& node, ConfigKey* key);
  bool ReadPad(const YamlNode& node, ConfigKey* key);
  bool ReadButton(const YamlNode& node, const QString& name, ConfigKey* key);
  bool RefuseStick(const YamlNode& node, const ConfigKey& key);
  void WarnOfUnusualPad(const YamlNode& node, const ConfigKey& key);
  bool Fail(const YamlNode& node, const QString& message);

  DiagnosticList* diagnostics_;  // not owned
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_KEY_READER_H_
