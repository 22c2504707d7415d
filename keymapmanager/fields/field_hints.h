// What the author of a wrong field or number most likely meant: ends of messages.
#ifndef KEYMAPMANAGER_FIELDS_FIELD_HINTS_H_
#define KEYMAPMANAGER_FIELDS_FIELD_HINTS_H_

#include <QString>
#include <QStringList>

#include "keymapmanager/item_types.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

// For a field that has no meaning at its place: where it has one, else the nearest of the fields `known` there. Empty
// when nothing comes near.
QString HintForField(const QString& name, const QStringList& known);

// For a number that a field does not take: a decimal comma, or pixels in place of a fraction. Empty for others.
QString HintForNumber(const FieldInfo& field, const YamlNode& node);

// What is written where [x, y] is expected; tells two numbers with decimal commas, which YAML reads as four.
QString DescribePair(const YamlNode& node);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_FIELD_HINTS_H_
