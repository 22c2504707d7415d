// Converts the document of a keymap file to a config.
#ifndef KEYMAPMANAGER_KEYMAP_READER_H_
#define KEYMAPMANAGER_KEYMAP_READER_H_

#include <memory>

#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/fields/record_reader.h"
#include "keymapmanager/fields/sourced_item.h"
#include "keymapmanager/keymap_file.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

// No items, and both settings records with their defaults.
std::unique_ptr<KeymapConfig> DefaultConfig();

class KeymapReader {
 public:
  explicit KeymapReader(DiagnosticList* diagnostics) : diagnostics_(diagnostics), records_(diagnostics) {}

  // Reads the whole document and reports all its errors. The result has no diagnostics of its own, and no items if
  // there was an error.
  LoadResult Read(const YamlNode& root);

 private:
  void ReportDuplicates(const YamlNode& node);
  void ReadFields(const YamlNode& root, LoadResult* result);
  void ReadFormat(const YamlNode& root);
  void ReadText(const QString& field, const YamlNode& node, QString* value);
  void ReadSettings(const RecordTable& table, const YamlNode& node, const RecordRef& record);
  void ReadItems(const YamlNode& node);
  void ReadItem(const YamlNode& node);
  const RecordTable* ReadType(const YamlNode& node);
  void ReadLabel(const YamlNode& node, QString* label);

  DiagnosticList* diagnostics_;  // not owned
  RecordReader records_;
  SourcedItems items_;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYMAP_READER_H_
