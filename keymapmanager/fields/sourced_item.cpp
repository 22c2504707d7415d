#include "keymapmanager/fields/sourced_item.h"

#include "keymapmanager/fields/record_reader.h"

namespace tavikeymapmanager {

const YamlSpan& SourcedItem::SpanOf(const QString& field) const {
  const YamlNode* value = FindValue(*node, field);
  return value == nullptr ? node->span : value->span;
}

}  // namespace tavikeymapmanager
