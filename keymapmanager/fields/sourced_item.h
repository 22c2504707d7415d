// An item of a keymap with its position in the file.
#ifndef KEYMAPMANAGER_FIELDS_SOURCED_ITEM_H_
#define KEYMAPMANAGER_FIELDS_SOURCED_ITEM_H_

#include <memory>
#include <vector>

#include "keymap/config_item.h"
#include "keymapmanager/fields/field.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

struct SourcedItem {
  // The position of a field, or that of the item if the field is absent.
  const YamlSpan& SpanOf(const QString& field) const;

  std::unique_ptr<ConfigItem> item;
  const RecordTable* table;  // of its type
  const YamlNode* node;      // into the tree of the document
  QString label;
  bool is_good;  // read without an error
};

using SourcedItems = std::vector<SourcedItem>;

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_SOURCED_ITEM_H_
